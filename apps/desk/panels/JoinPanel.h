#pragma once

#include "JoinPlace.h"
#include "SelectionMemory.h"
#include "joinTexts.h"

#include <QStringList>
#include <QWidget>

#include <array>
#include <optional>
#include <vector>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QToolButton;

namespace orvex {

// The choices of MLJOIN as pictures, what will be joined in words, and what was left as a list.
// Whatever the user chooses answers the command's questions; what it shows comes from the command.
class JoinPanel final : public QWidget {
    Q_OBJECT

public:
    explicit JoinPanel(QWidget* parent = nullptr);

    // What the command asks at the moment.
    void showIdle();
    void showSelection(const SelectionProgress& progress);
    void showOptions();

    void showReport(const JoinReport& report);
    void clearReport();

    [[nodiscard]] const std::vector<LeftPlace>& left() const { return m_left; }

signals:
    void started(); // the command is wanted
    void answered(const QStringList& lines);
    void cancelled();
    void placeChosen(int left); // index into left()

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Stage { idle, selection, options };
    using KindButtons = std::array<QToolButton*, 4>; // in the order of JoinKind

    KindButtons addKinds(QGridLayout& grid, int row, const char* keyword);
    void addCorners(QGridLayout& grid, int row);
    void addTolerance(QGridLayout& grid, int row);
    void addResults(QGridLayout& grid, int row);
    void setStage(Stage stage, const QString& text, bool hasChoices);
    void showOptions(const JoinOptions& options);
    void giveTolerance();
    void press();
    void step(QWidget& from, bool forward);

    Stage m_stage = Stage::idle;
    QStringList m_goAnswer; // what the button answers
    JoinOptions m_options;  // of the report shown
    std::vector<LeftPlace> m_left;
    QWidget* m_choices = nullptr;
    KindButtons m_cross{};
    KindButtons m_tee{};
    QCheckBox* m_corners = nullptr;
    QLineEdit* m_tolerance = nullptr;
    QLabel* m_summary = nullptr;
    QListWidget* m_list = nullptr;
    QPushButton* m_go = nullptr;
    QPushButton* m_cancel = nullptr;
};

} // namespace orvex
