// Linked into every program of a build with sanitizers, so that they behave the same however the
// program is started.

// The runtime fixes these names; it asks for them where they exist.
// NOLINTBEGIN(bugprone-reserved-identifier,readability-identifier-naming)
extern "C" {
const char* __ubsan_default_options();
const char* __lsan_default_options();
const char* __lsan_default_suppressions();
}

const char* __ubsan_default_options() {
    return "print_stacktrace=1";
}

const char* __lsan_default_options() {
    return "print_suppressions=0";
}

// Qt's offscreen platform forgets its screen at the end, its main window an animation of a panel
// that still runs, and fontconfig keeps its cache. The inner parts of a QObject are let pass alone:
// an object of ours that leaks is reported by its own allocation. A module keeps one opening of its
// resource library to the end of the process, on purpose.
const char* __lsan_default_suppressions() {
    return "leak:libqoffscreen\n"
           "leak:QScreen::QScreen\n"
           "leak:QPlatformScreen::QPlatformScreen\n"
           "leak:QWindowSystemInterface::handleScreenAdded\n"
           "leak:QObject::QObject\n"
           "leak:QPropertyAnimation::QPropertyAnimation\n"
           "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n"
           "leak:QResource::registerResource\n"
           "leak:libfontconfig\n";
}
// NOLINTEND(bugprone-reserved-identifier,readability-identifier-naming)
