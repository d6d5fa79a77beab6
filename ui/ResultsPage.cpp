#include "ResultsPage.h"

#include "OutputTable.h"
#include "PageStyle.h"
#include "tvrEditBox.h"

#include <QLabel>

ResultsPage::ResultsPage(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("picMovingWindow_1"));
    for (int group = 1; group <= 5; ++group) {
        lblOutput[static_cast<size_t>(group)] = PageStyle::makeHeading(
                PageStyle::indexedName("lblOutput", group), kResultGroupTitles[group], this);
        const OutputGroup &members = kOutputGroups[static_cast<size_t>(group)];
        for (int i = members.first; i <= members.last; ++i) {
            auto *output = new tvrEditBox(this);
            output->setObjectName(PageStyle::indexedName("txtOutput", i));
            output->setLeftCaption(QString::fromUtf8(outputBox(i).caption));
            output->setRightCaption(QString::fromUtf8(outputBox(i).unit));
            output->setWriteProtected(true);
            txtOutput[static_cast<size_t>(i)] = output;
        }
    }
}

ResultsPageControls ResultsPage::controls()
{
    ResultsPageControls c;
    c.panel = this;
    c.txtOutput = txtOutput;
    c.lblOutput = lblOutput;
    return c;
}

void ResultsPage::LayoutResultsPage(int solutionMethod, int channelFlowMethod)
{
    PageLayout::LayoutResultsPage(controls(), solutionMethod, channelFlowMethod,
                                  PageUnits(fontMetrics()));
}

void ResultsPage::WriteResults(const std::array<std::string, kOutputCount + 1> &texts)
{
    for (int i = 1; i <= kOutputCount; ++i)
        box(i)->setWriteProtected(false);
    for (int i = 1; i <= kOutputCount; ++i)
        box(i)->setText(QString::fromStdString(texts[static_cast<size_t>(i)]));
    for (int i = 1; i <= kOutputCount; ++i)
        box(i)->setWriteProtected(true);
}

void ResultsPage::clearBoxes()
{
    WriteResults({});
}

std::array<std::string, kOutputCount + 1> ResultsPage::texts() const
{
    std::array<std::string, kOutputCount + 1> result {};
    for (int i = 1; i <= kOutputCount; ++i)
        result[static_cast<size_t>(i)] = box(i)->text().toStdString();
    return result;
}
