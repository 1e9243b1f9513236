#pragma once

#include <QDialog>

class QLineEdit;
class QTextBrowser;

namespace orvex {

// The help, in a window that stays open while one works.
class HelpWindow final : public QDialog {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    // Comes to the front, at the first of the topics that a page tells of; without any, where it
    // was.
    void showTopic(const QStringList& topics);

private:
    void showPage(const QString& page);
    bool goTo(const QString& page, const QString& topic);
    void startSearch();
    void search(bool backward);

    QTextBrowser* m_browser;
    QLineEdit* m_words;
};

} // namespace orvex
