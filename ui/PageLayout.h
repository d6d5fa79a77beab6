#pragma once

#include "SwaleProject.h"

#include <QSize>

#include <array>

class QAbstractButton;
class QFontMetrics;
class QLabel;
class QPushButton;
class QWidget;
class tvrEditBox;

// The controls of the Input Data page that its layout places; all are children of `panel`,
// the page's content panel picMovingWindow(0).
struct InputPageControls
{
    QWidget *panel = nullptr;
    std::array<tvrEditBox *, kInputCount + 1> txtInput {}; // [0] unused: boxes 1 to 23
    std::array<QLabel *, 10> lblInput {}; // [0] unused: section headings 1 to 9
    QWidget *grpSolutionMethod = nullptr;
    QWidget *grpChannelFlow = nullptr;
    std::array<QAbstractButton *, kSolutionMethodCount + 1> optCalculate {}; // [0] unused
    std::array<QAbstractButton *, kChannelFlowMethodCount + 1> optChannelFlow {}; // [0] unused
    QWidget *grdRatingCurve = nullptr;
    QPushButton *cmdToday = nullptr; // beside the date box
    std::array<QPushButton *, 3> cmdHelp {}; // [0] unused: beside boxes 18 and 19
};

// The controls of the Results page, children of picMovingWindow(1).
struct ResultsPageControls
{
    QWidget *panel = nullptr;
    std::array<tvrEditBox *, kOutputCount + 1> txtOutput {}; // [0] unused: boxes 1 to 18
    std::array<QLabel *, 6> lblOutput {}; // [0] unused: group headings 1 to 5
};

// The spacing of both pages, taken from the size of the letter "X" in the page's font so that
// the pages keep their proportions at any font size.
struct PageUnits
{
    explicit PageUnits(const QFontMetrics &metrics);

    int xWidth; // width of "X"
    int xHeight; // height of a line of text
    int boxGap; // between two boxes of a section: a quarter line
    int headingGap; // above a section heading: a line plus 10
    int underHeading; // between a heading and its first item: half a line
    int margin; // left, right and top margins of the page
    int indent; // of a section's items under its heading
    int besideGap; // between a box and the button beside it
};

namespace PageLayout {

// Shows the sections of the Input Data page that the choices need and hides the others, places
// the shown items from the top down (a hidden item takes no room), lines up the value fields of
// all input boxes behind a caption column as wide as the widest caption, puts cmdToday beside
// the date and the help buttons beside boxes 18 and 19, and sizes the content panel to the
// items plus a margin. Returns the panel's new size.
QSize LayoutInputPage(const InputPageControls &controls, int solutionMethod, int channelFlowMethod,
                      const PageUnits &units);

// The same for the Results page: captions of the headings and boxes for the choices, the
// boxes that the choices fill, aligned the same way.
QSize LayoutResultsPage(const ResultsPageControls &controls, int solutionMethod,
                        int channelFlowMethod, const PageUnits &units);

} // namespace PageLayout
