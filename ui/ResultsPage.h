#pragma once

#include "PageLayout.h"
#include "SwaleProject.h"

#include <QWidget>

#include <array>

class QLabel;
class tvrEditBox;

// The content of the Results page (picMovingWindow(1)): the five result groups with their
// headings lblOutput(1..5) and the write-protected output boxes txtOutput(1..18).
class ResultsPage : public QWidget
{
    Q_OBJECT

public:
    explicit ResultsPage(QWidget *parent = nullptr);

    tvrEditBox *box(int index) const { return txtOutput[static_cast<size_t>(index)]; }
    QLabel *heading(int group) const { return lblOutput[static_cast<size_t>(group)]; }

    ResultsPageControls controls();
    // Shows the captions and the boxes that the chosen options fill (0: none chosen), stacked
    // from the top, and sizes the page to them.
    void LayoutResultsPage(int solutionMethod, int channelFlowMethod);

    // Writes the 18 texts, lifting each box's write protection for the moment of writing.
    void WriteResults(const std::array<std::string, kOutputCount + 1> &texts);
    // Empties the 18 boxes the same way.
    void clearBoxes();
    // The current texts of the 18 boxes ([0] unused).
    std::array<std::string, kOutputCount + 1> texts() const;

private:
    std::array<tvrEditBox *, kOutputCount + 1> txtOutput {}; // [0] unused: boxes 1 to 18
    std::array<QLabel *, 6> lblOutput {}; // [0] unused: group headings 1 to 5
};
