// The verb show: a drawing as a picture.

#include "DatabaseCore.h"
#include "KdDbDatabase.h"
#include "Scene.h"
#include "ShowOptions.h"
#include "batchFiles.h"
#include "memoryEnd.h"
#include "partlyDrawnText.h"
#include "pictureWriter.h"
#include "verbs.h"

#include <CLI/CLI.hpp>
#include <QGuiApplication>

#include <clocale>
#include <cstdlib>
#include <optional>

namespace orvex {

namespace {

// Fonts need an application, which needs no screen here.
class FontApplication {
public:
    FontApplication() {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        // Qt takes apart what it couldn't make whole, and crashes by it.
        const MemoryEndIsFinal whileItStarts;
        m_application.emplace(m_count, m_arguments);
        // It takes the user's locale, in which the system would tell of failures.
        std::setlocale(LC_MESSAGES, "C");
    }

private:
    int m_count = 1;
    char m_name[12] = "orvex-batch";
    char* m_arguments[2] = {m_name, nullptr};
    std::optional<QGuiApplication> m_application;
};

// Qt warns of missing folders of the desktop and the like, which don't matter to a picture.
void ignoreWarnings(QtMsgType kind, const QMessageLogContext& /*context*/, const QString& text) {
    if (kind == QtCriticalMsg || kind == QtFatalMsg) {
        complain(text.toStdString());
    }
}

class ShowVerb final : public Verb {
public:
    ShowVerb()
        : Verb({"show", "Draw a drawing into a picture", "The picture: .svg, .png or .pdf", true}) {
    }

    void addOptions(CLI::App& options) override {
        m_options.add(options);
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
        auto failure = m_options.check(*kind);
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
        const FontApplication application;
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
        const auto options = m_options.apply(scene, database.core());
        if (!options) {
            return wrongCall(inputName(task.drawing), options.failure().text);
        }
        const auto picture = makePicture(scene, *kindOf(task), *options);
        AtomicFile target = resultFile(*task.output);
        if (!picture) {
            Failure failure = picture.failure();
            failure.file = target.path();
            return failure;
        }
        if (auto failure = saveFile(target, picture->bytes)) {
            return failure;
        }
        const auto warn = [&](const std::string& text) {
            complain(inputName(task.drawing) + ": warning: " + text);
        };
        if (picture->isCut) {
            warn("the drawing is larger than the paper at this scale; its middle is shown");
        }
        if (const auto partlyDrawn = scene.partlyDrawn(); !partlyDrawn.empty()) {
            warn(partlyDrawnText(partlyDrawn));
        }
        return std::nullopt;
    }

    ShowOptions m_options;
    std::string m_type; // as given; empty without
    std::optional<PictureKind> m_kind;
};

} // namespace

std::unique_ptr<Verb> makeShowVerb() {
    return std::make_unique<ShowVerb>();
}

} // namespace orvex
