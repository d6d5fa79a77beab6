#include "InputPage.h"

#include "InputTable.h"
#include "OptionGroup.h"
#include "PageStyle.h"
#include "RatingCurveGrid.h"
#include "RdcGridA.h"
#include "ReadingNotes.h"
#include "tvrEditBox.h"

#include <QDate>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <vector>

namespace {

QStringList captionList(const char *const *captions, int count)
{
    QStringList list;
    for (int i = 1; i <= count; ++i)
        list << QString::fromUtf8(captions[i]);
    return list;
}

} // namespace

InputPage::InputPage(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("picMovingWindow_0"));
    for (int i = 1; i <= kInputCount; ++i) {
        auto *input = new tvrEditBox(this);
        input->setObjectName(PageStyle::indexedName("txtInput", i));
        input->setLeftCaption(QString::fromUtf8(inputBox(i).caption));
        input->setRightCaption(QString::fromUtf8(inputBox(i).unit));
        connect(input, &tvrEditBox::textChanged, this, [this, i] { emit inputEdited(i); });
        txtInput[static_cast<size_t>(i)] = input;
    }
    grpSolutionMethod = new OptionGroup(
            QStringLiteral("grpSolutionMethod"), QStringLiteral("optCalculate"),
            captionList(kSolutionMethodCaptions.data(), kSolutionMethodCount), this);
    grpChannelFlow = new OptionGroup(
            QStringLiteral("grpChannelFlow"), QStringLiteral("optChannelFlow"),
            captionList(kChannelFlowMethodCaptions.data(), kChannelFlowMethodCount), this);
    connect(grpSolutionMethod, &OptionGroup::optionClicked, this,
            &InputPage::solutionMethodClicked);
    connect(grpChannelFlow, &OptionGroup::optionClicked, this, &InputPage::channelFlowClicked);
    grdRatingCurve = new RdcGridA(this);
    grdRatingCurve->setObjectName(QStringLiteral("grdRatingCurve"));
    setupRatingCurveGrid(*grdRatingCurve);
    connect(grdRatingCurve, &RdcGridA::Change, this, &InputPage::ratingCurveEdited);

    for (int section = 1; section <= 9; ++section) {
        lblInput[static_cast<size_t>(section)] = PageStyle::makeHeading(
                PageStyle::indexedName("lblInput", section),
                QString::fromUtf8(kInputSectionHeadings[static_cast<size_t>(section)]), this);
    }
    cmdToday = makeButton(QStringLiteral("cmdToday"), QStringLiteral("<- Today"));
    connect(cmdToday, &QPushButton::clicked, this, &InputPage::writeToday);
    for (int topic = 1; topic <= 2; ++topic) {
        QPushButton *help
                = makeButton(PageStyle::indexedName("cmdHelp", topic), QStringLiteral("<-  Help"));
        connect(help, &QPushButton::clicked, this, [this, topic] { emit helpRequested(topic); });
        cmdHelp[static_cast<size_t>(topic)] = help;
    }
    setTabOrderDownThePage();
    m_readingNotes = new ReadingNotes(controls(), this);
}

// The Tab key walks the page from the top down, as the page stacks its items.
void InputPage::setTabOrderDownThePage()
{
    std::vector<QWidget *> order = { box(1), box(2), box(3), cmdToday };
    for (int i = 1; i <= kSolutionMethodCount; ++i)
        order.push_back(grpSolutionMethod->option(i));
    for (int i = 4; i <= 9; ++i)
        order.push_back(box(i));
    for (int i = 1; i <= kChannelFlowMethodCount; ++i)
        order.push_back(grpChannelFlow->option(i));
    for (int i = 10; i <= 18; ++i)
        order.push_back(box(i));
    order.insert(order.end(), { cmdHelp[1], box(19), cmdHelp[2] });
    for (int i = 20; i <= 23; ++i)
        order.push_back(box(i));
    order.push_back(grdRatingCurve);
    // The chain links the widgets that take the focus: a box's value field, the grid's surface.
    for (QWidget *&widget : order) {
        if (widget->focusProxy())
            widget = widget->focusProxy();
    }
    for (size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QPushButton *InputPage::makeButton(const QString &name, const QString &caption)
{
    auto *button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

InputPageControls InputPage::controls()
{
    InputPageControls c;
    c.panel = this;
    c.txtInput = txtInput;
    c.lblInput = lblInput;
    c.grpSolutionMethod = grpSolutionMethod;
    c.grpChannelFlow = grpChannelFlow;
    for (int i = 1; i <= kSolutionMethodCount; ++i)
        c.optCalculate[static_cast<size_t>(i)] = grpSolutionMethod->option(i);
    for (int i = 1; i <= kChannelFlowMethodCount; ++i)
        c.optChannelFlow[static_cast<size_t>(i)] = grpChannelFlow->option(i);
    c.grdRatingCurve = grdRatingCurve;
    c.cmdToday = cmdToday;
    c.cmdHelp = cmdHelp;
    return c;
}

int InputPage::GetSolutionMethod() const
{
    return grpSolutionMethod->chosen();
}

int InputPage::GetChannelFlowOption() const
{
    return grpChannelFlow->chosen();
}

void InputPage::LayoutInputPage()
{
    PageLayout::LayoutInputPage(controls(), GetSolutionMethod(), GetChannelFlowOption(),
                                PageUnits(fontMetrics()));
    m_readingNotes->place();
}

void InputPage::readInto(SwaleProject &project) const
{
    for (int i = 1; i <= kInputCount; ++i)
        project.inputText[static_cast<size_t>(i)] = box(i)->text().toStdString();
    project.solutionMethod = GetSolutionMethod();
    project.channelFlowMethod = GetChannelFlowOption();
    const int rows = grdRatingCurve->Rows();
    project.ratingCurve.assign(static_cast<size_t>(rows), {});
    for (int row = 1; row <= rows; ++row) {
        for (int col = 1; col <= 2; ++col)
            project.setRatingCurveCell(row, col, grdRatingCurve->Text(row, col).toStdString());
    }
}

void InputPage::showProject(const SwaleProject &project)
{
    for (int i = 1; i <= kInputCount; ++i) {
        const QSignalBlocker blocker(box(i));
        box(i)->setText(QString::fromStdString(project.inputText[static_cast<size_t>(i)]));
    }
    grpSolutionMethod->setChosen(project.solutionMethod);
    grpChannelFlow->setChosen(project.channelFlowMethod);

    const QSignalBlocker blocker(grdRatingCurve);
    // A file may hold more rows than the grid starts with: the grid grows to hold them all.
    const int rows = std::max(kRatingCurveGridRows, project.ratingCurveRowCount());
    if (rows != grdRatingCurve->Rows())
        grdRatingCurve->setRows(rows);
    grdRatingCurve->Clear();
    for (int row = 1; row <= project.ratingCurveRowCount(); ++row) {
        for (int col = 1; col <= 2; ++col) {
            const std::string &text = project.ratingCurveCell(row, col);
            if (!text.empty())
                grdRatingCurve->setText(row, col, QString::fromStdString(text));
        }
    }
    grdRatingCurve->setChanged(false);
    grdRatingCurve->Refresh();
}

void InputPage::focusInput(int index)
{
    box(index)->setFocus(Qt::OtherFocusReason);
}

void InputPage::selectRatingCurveCell(int row, int col)
{
    grdRatingCurve->SetCurrentCell(row, col);
    grdRatingCurve->MakeCellVisible(row, col);
}

void InputPage::focusRatingCurve()
{
    grdRatingCurve->setFocus(Qt::OtherFocusReason);
    grdRatingCurve->Refresh();
}

void InputPage::writeToday()
{
    // Month, day and year joined by hyphens, as the date box has always shown it: 03-07-2026.
    box(3)->setText(QDate::currentDate().toString(QStringLiteral("MM-dd-yyyy")));
    // The button marks the document changed even when the box already held today's date.
    emit inputEdited(3);
}
