#pragma once

#include "PageLayout.h"
#include "SwaleProject.h"

#include <QWidget>

#include <array>

class OptionGroup;
class QLabel;
class QPushButton;
class RdcGridA;
class ReadingNotes;
class tvrEditBox;

// The content of the Input Data page (picMovingWindow(0)): the input boxes txtInput(1..23)
// under their section headings lblInput(1..9), the option groups grpSolutionMethod and
// grpChannelFlow, the rating-curve grid grdRatingCurve and the buttons cmdToday and
// cmdHelp(1..2). It copies itself into a SwaleProject and back; what an edit means for the
// document is the window's business, told through the signals.
class InputPage : public QWidget
{
    Q_OBJECT

public:
    explicit InputPage(QWidget *parent = nullptr);

    tvrEditBox *box(int index) const { return txtInput[static_cast<size_t>(index)]; }
    QLabel *heading(int section) const { return lblInput[static_cast<size_t>(section)]; }
    OptionGroup *solutionMethodGroup() const { return grpSolutionMethod; }
    OptionGroup *channelFlowGroup() const { return grpChannelFlow; }
    RdcGridA *ratingCurveGrid() const { return grdRatingCurve; }

    // The chosen buttons, 0 when none is chosen.
    int GetSolutionMethod() const;
    int GetChannelFlowOption() const;

    // The controls that the page's layout places.
    InputPageControls controls();
    // Shows the sections and boxes that the chosen options ask for, stacked from the top (the
    // others take no room), and sizes the page to them.
    void LayoutInputPage();

    // Copies the boxes, the options and the rating-curve cells into `project`.
    void readInto(SwaleProject &project) const;
    // Shows `project`'s inputs and options without raising the edit signals.
    void showProject(const SwaleProject &project);

    // Puts the keyboard focus in input box `index`.
    void focusInput(int index);
    // Makes rating-curve cell (row, col) current and scrolls it into view.
    void selectRatingCurveCell(int row, int col);
    void focusRatingCurve();

signals:
    // The text of input box `index` changed by an edit or "<- Today".
    void inputEdited(int index);
    void ratingCurveEdited();
    void solutionMethodClicked(int index);
    void channelFlowClicked(int index);
    // cmdHelp(topic) was pressed: 1 permissible velocity, 2 roughness.
    void helpRequested(int topic);

private:
    QPushButton *makeButton(const QString &name, const QString &caption);
    void setTabOrderDownThePage();
    void writeToday();

    std::array<tvrEditBox *, kInputCount + 1> txtInput {}; // [0] unused: boxes 1 to 23
    std::array<QLabel *, 10> lblInput {}; // [0] unused: section headings 1 to 9
    std::array<QPushButton *, 3> cmdHelp {}; // [0] unused: help buttons 1 and 2
    OptionGroup *grpSolutionMethod = nullptr;
    OptionGroup *grpChannelFlow = nullptr;
    RdcGridA *grdRatingCurve = nullptr;
    QPushButton *cmdToday = nullptr;
    ReadingNotes *m_readingNotes = nullptr;
};
