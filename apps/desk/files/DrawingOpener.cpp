#include "DrawingOpener.h"

#include "hostText.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressDialog>

#include <exception>
#include <memory>

namespace orvex {

namespace {

constexpr qint64 kLargeFile = 2 << 20; // bytes; what is smaller is open before one could look
constexpr qint64 kPumpEvery = 10;      // milliseconds
constexpr int kSteps = 1000;           // of the bar
constexpr int kWidth = 360;            // pixels

// Hands on the keys of a dialog that has use for Escape only.
class KeyPasser final : public QObject {
public:
    KeyPasser(QObject* parent, const DrawingOpener::KeyTaker& take)
        : QObject(parent), m_take(take) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isPress = event->type() == QEvent::KeyPress;
        if (!isPress && event->type() != QEvent::ShortcutOverride) {
            return QObject::eventFilter(watched, event);
        }
        const auto& key = *static_cast<const QKeyEvent*>(event);
        if (key.key() == Qt::Key_Escape) {
            return false;
        }
        event->accept();
        if (isPress) {
            m_take(key);
        }
        return true;
    }

private:
    const DrawingOpener::KeyTaker& m_take;
};

// Sets a flag while it lives.
class FlagScope {
public:
    explicit FlagScope(bool& flag) : m_flag(flag) { flag = true; }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

private:
    bool& m_flag;
};

} // namespace

std::unique_ptr<QProgressDialog> DrawingOpener::makeProgress(const QString& path) const {
    auto dialog = std::make_unique<QProgressDialog>(&m_window);
    dialog->setWindowTitle(QObject::tr("Opening"));
    auto* const label = new QLabel(QObject::tr("Opening %1 ...").arg(QFileInfo(path).fileName()));
    label->setTextFormat(Qt::PlainText);
    dialog->setLabel(label); // which it takes over
    dialog->setRange(0, kSteps);
    dialog->setMinimumWidth(kWidth);
    dialog->setAutoClose(false);
    dialog->setAutoReset(false);
    dialog->setMinimumDuration(0);
    // Nothing after it can be used, from the first moment on.
    dialog->setWindowModality(Qt::ApplicationModal);
    if (m_takeKey) {
        auto* const passer = new KeyPasser(dialog.get(), m_takeKey);
        dialog->installEventFilter(passer);
        for (QWidget* const part : dialog->findChildren<QWidget*>()) {
            part->installEventFilter(passer);
        }
    }
    dialog->show();
    return dialog;
}

Result<std::unique_ptr<DrawingFile>> DrawingOpener::open(const QString& path) {
    const FlagScope opening(m_isOpening);
    m_isCancelled = false;
    const std::string file = path.toStdString();
    std::unique_ptr<QProgressDialog> dialog;
    Progress progress;
    QElapsedTimer sincePump;
    sincePump.start();
    if (QFileInfo(path).size() >= kLargeFile) {
        dialog = makeProgress(path);
        progress = [&](double done) {
            if (sincePump.elapsed() >= kPumpEvery) {
                dialog->setValue(static_cast<int>(done * kSteps));
                QCoreApplication::processEvents();
                sincePump.restart();
            }
            return !m_isCancelled && !dialog->wasCanceled();
        };
    }
    try {
        auto opened = DrawingFile::open(file, progress);
        if (dialog) {
            QCoreApplication::processEvents(); // the swap of the drawings takes its time, too
        }
        return opened;
    } catch (const std::bad_alloc&) {
        return Failure{FailureCause::unreadableInput, file, 0, hostText("not enough memory")};
    } catch (const std::exception& error) {
        return Failure{FailureCause::programFault, file, 0, error.what()};
    }
}

} // namespace orvex
