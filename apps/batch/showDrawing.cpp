// The verb show: a drawing as a picture.

#include "Scene.h"
#include "batchFiles.h"
#include "partlyDrawnText.h"
#include "pictureWriter.h"
#include "verbs.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>

#include <charconv>
#include <cstdlib>

namespace orvex {

namespace {

// Qt warns of missing folders of the desktop and the like, which don't matter to a picture.
void ignoreWarnings(QtMsgType kind, const QMessageLogContext& /*context*/, const QString& text) {
    if (kind == QtCriticalMsg || kind == QtFatalMsg) {
        complain(text.toStdString());
    }
}

// "WxH" in pixels.
std::optional<PictureSize> parseSize(const std::string& text) {
    const auto number = [](const char* first, const char* last) {
        int value = 0;
        const auto result = std::from_chars(first, last, value);
        return result.ec == std::errc() && result.ptr == last ? value : 0;
    };
    const std::size_t cross = text.find('x');
    if (cross == std::string::npos) {
        return std::nullopt;
    }
    const int width = number(text.data(), text.data() + cross);
    const int height = number(text.data() + cross + 1, text.data() + text.size());
    if (width <= 0 || height <= 0) {
        return std::nullopt;
    }
    return PictureSize{width, height};
}

std::string checkSize(const std::string& text) {
    return parseSize(text) ? std::string() : "the size is two numbers of pixels, as in 1600x1200";
}

class ShowVerb final : public Verb {
public:
    ShowVerb()
        : Verb({"show", "Draw a drawing into a picture", "The picture: .svg, .png or .pdf", true}) {
    }

    void addOptions(CLI::App& options) override {
        options
            .add_option_function<std::string>(
                "--size", [this](const std::string& text) { m_size = *parseSize(text); },
                "Its size in pixels")
            ->type_name("WxH")
            ->default_str("1600x1200")
            ->check(checkSize);
        options
            .add_option_function<std::string>(
                "--type",
                [this](const std::string& word) {
                    m_type = word;
                    m_kind = pictureKind(word);
                },
                "svg, png or pdf, where no name says it")
            ->check(CLI::IsMember({"svg", "png", "pdf"}));
    }

    [[nodiscard]] std::optional<Failure> check(const DrawingTask& task) const override {
        const auto kind = kindOf(task);
        if (!kind && (task.printsResult() || task.isOneOfMany)) {
            return wrongCall({}, "--type has to say what picture is wanted: svg, png or pdf");
        }
        if (!kind) {
            return wrongCall(*task.output,
                             "the name of a picture has to end in .svg, .png or .pdf");
        }
        if (m_kind && *m_kind != *kind) {
            return wrongCall(*task.output, "--type and the name of the picture contradict");
        }
        auto failure = checkPicture(*kind, m_size);
        return failure ? wrongCall(*task.output, failure->text) : failure;
    }

    [[nodiscard]] std::string outputEnding(const std::string& /*drawing*/) const override {
        return m_type.empty() ? "" : '.' + m_type;
    }

    std::optional<Failure> carryOut(const DrawingTask& task, Counts& /*counts*/) override {
        const auto drawing = openDrawing(task.drawing);
        if (!drawing) {
            return drawing.failure();
        }
        qInstallMessageHandler(ignoreWarnings);
        // Fonts need an application, which needs no screen here.
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        int argc = 1;
        char name[] = "orvex-batch";
        char* argv[] = {name, nullptr};
        const QGuiApplication application(argc, argv);
        return withMemory(FailureCause::unwritableOutput, *task.output,
                          [&] { return draw((*drawing)->database(), task); });
    }

private:
    static Failure wrongCall(const std::string& file, std::string text) {
        return {FailureCause::wrongCall, file, 0, std::move(text)};
    }

    // By the name's ending, else as --type says.
    [[nodiscard]] std::optional<PictureKind> kindOf(const DrawingTask& task) const {
        const auto named = task.printsResult() ? std::nullopt : pictureKindOf(*task.output);
        return named ? named : m_kind;
    }

    [[nodiscard]] std::optional<Failure> draw(KdDbDatabase& database,
                                              const DrawingTask& task) const {
        Scene scene(database);
        const auto picture = makePicture(scene, *kindOf(task), m_size);
        AtomicFile target = resultFile(*task.output);
        if (!picture) {
            Failure failure = picture.failure();
            failure.file = target.path();
            return failure;
        }
        auto failure = saveFile(target, *picture);
        if (const auto partlyDrawn = scene.partlyDrawn(); !failure && !partlyDrawn.empty()) {
            complain(inputName(task.drawing) + ": warning: " + partlyDrawnText(partlyDrawn));
        }
        return failure;
    }

    PictureSize m_size;
    std::string m_type; // as given; empty without
    std::optional<PictureKind> m_kind;
};

} // namespace

std::unique_ptr<Verb> makeShowVerb() {
    return std::make_unique<ShowVerb>();
}

} // namespace orvex
