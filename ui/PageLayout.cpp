#include "PageLayout.h"

#include "InputTable.h"
#include "OutputTable.h"
#include "PageRules.h"
#include "tvrEditBox.h"

#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <vector>

PageUnits::PageUnits(const QFontMetrics &metrics)
    : xWidth(metrics.horizontalAdvance(QLatin1Char('X')))
    , xHeight(metrics.height())
    , boxGap(xHeight / 4)
    , headingGap(xHeight + 10)
    , underHeading(xHeight / 2)
    , margin(2 * xWidth)
    , indent(2 * xWidth)
    , besideGap(xWidth)
{ }

namespace PageLayout {
namespace {

// Widths of the value fields, in widths of "X": numbers and the date, the free texts (job
// name, engineer, lining type), the results.
constexpr int kNumberWidthInX = 12;
constexpr int kTextWidthInX = 30;
constexpr int kResultWidthInX = 14;

// Places the shown items of a page one under the other, from the top margin down.
class PageWalk
{
public:
    explicit PageWalk(const PageUnits &units)
        : m_units(units)
        , m_top(units.margin)
    { }

    // Puts `item` at `left`, `gap` below the previous item (no gap above the first one).
    void place(QWidget *item, int left, int gap)
    {
        if (m_placedAny)
            m_top += gap;
        const QSize size = item->sizeHint();
        item->setGeometry(left, m_top, size.width(), size.height());
        item->show();
        m_top += size.height();
        m_placedAny = true;
        widen(item->geometry().right() + 1);
    }

    // Puts `button` to the right of `box`, on the same top and as high as the box: beside its
    // value field when the box has no unit, else beside the unit column (so that the buttons
    // of boxes with and without a unit line up).
    void placeBeside(QPushButton *button, const tvrEditBox *box, bool besideValue)
    {
        const QRect at = box->geometry();
        const int right = besideValue ? box->editor()->geometry().right() + at.left() : at.right();
        const int left = right + 1 + m_units.besideGap;
        button->setGeometry(left, at.top(), button->sizeHint().width(), at.height());
        button->show();
        widen(button->geometry().right() + 1);
    }

    void widen(int right) { m_right = std::max(m_right, right); }

    // The content panel's size: the widest item and the last item's bottom plus 2 plus a
    // margin.
    QSize panelSize() const { return { m_right + m_units.margin, m_top + 2 + m_units.margin }; }
    int right() const { return m_right; }

private:
    const PageUnits &m_units;
    int m_top;
    int m_right = 0;
    bool m_placedAny = false;
};

// Gives every box a caption column as wide as the widest caption and a unit column as wide as
// the widest unit, so that the value fields line up down the page.
void alignColumns(const std::vector<tvrEditBox *> &boxes, const std::vector<int> &valueWidths,
                  const PageUnits &units)
{
    int captionWidth = 0;
    int unitWidth = 0;
    for (const tvrEditBox *box : boxes) {
        captionWidth = std::max(captionWidth, box->captionTextWidth());
        unitWidth = std::max(unitWidth, box->unitTextWidth());
    }
    for (size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setColumnWidths(captionWidth + units.xWidth, valueWidths[i], unitWidth + 4);
}

// Stretches the shown headings to the width of the page's items, so that the rule under each
// heading spans its section.
void stretchHeadings(const std::vector<QLabel *> &headings, const PageWalk &walk,
                     const PageUnits &units)
{
    for (QLabel *heading : headings) {
        if (!heading->isHidden())
            heading->resize(std::max(heading->width(), walk.right() - units.margin),
                            heading->height());
    }
}

void placeInputBoxes(const InputPageControls &c, PageWalk &walk, int first, int last,
                     int solutionMethod, int channelFlowMethod, const PageUnits &units,
                     int firstGap)
{
    int gap = firstGap;
    for (int i = first; i <= last; ++i) {
        tvrEditBox *box = c.txtInput[static_cast<size_t>(i)];
        if (!PageRules::isInputBoxShown(i, solutionMethod, channelFlowMethod)) {
            box->hide();
            continue;
        }
        walk.place(box, units.margin + units.indent, gap);
        gap = units.boxGap;
    }
}

// The boxes (first, last) and other content of each section of the Input Data page, [0] the
// job boxes above the first heading; a first of 0 means the section holds no boxes.
struct InputSection
{
    int firstBox;
    int lastBox;
};
constexpr InputSection kInputSections[]
        = { { 1, 3 },   { 0, 0 },   { 4, 8 },   { 9, 9 },   { 0, 0 },
            { 10, 14 }, { 15, 16 }, { 17, 19 }, { 20, 23 }, { 0, 0 } };

// The widget that stands under heading `section` instead of boxes, if any.
QWidget *sectionContent(const InputPageControls &c, int section)
{
    switch (section) {
    case 1:
        return c.grpSolutionMethod;
    case 4:
        return c.grpChannelFlow;
    case 9:
        return c.grdRatingCurve;
    default:
        return nullptr;
    }
}

void hideInputSection(const InputPageControls &c, int section)
{
    c.lblInput[static_cast<size_t>(section)]->hide();
    if (QWidget *content = sectionContent(c, section))
        content->hide();
    const InputSection &boxes = kInputSections[section];
    for (int i = boxes.firstBox; boxes.firstBox != 0 && i <= boxes.lastBox; ++i)
        c.txtInput[static_cast<size_t>(i)]->hide();
}

void alignInputBoxes(const InputPageControls &c, const PageUnits &units)
{
    std::vector<tvrEditBox *> boxes;
    std::vector<int> valueWidths;
    for (int i = 1; i <= kInputCount; ++i) {
        const bool freeText = inputBox(i).kind == InputKind::Text && i != 3;
        boxes.push_back(c.txtInput[static_cast<size_t>(i)]);
        valueWidths.push_back((freeText ? kTextWidthInX : kNumberWidthInX) * units.xWidth);
    }
    alignColumns(boxes, valueWidths, units);
}

void setResultCaptions(const ResultsPageControls &c, int solutionMethod, int channelFlowMethod)
{
    for (int group = 1; group <= 5; ++group) {
        c.lblOutput[static_cast<size_t>(group)]->setText(
                QString::fromUtf8(resultGroupTitle(group, solutionMethod, channelFlowMethod)));
    }
    // Captions follow the choices that name them; with nothing chosen (or method 4, which
    // shows neither box 16 nor 17) they stay as they were.
    std::vector<int> boxes;
    if (solutionMethod != 0)
        boxes.push_back(2);
    if (channelFlowMethod != 0)
        boxes.insert(boxes.end(), { 4, 5 });
    if (solutionMethod >= 1 && solutionMethod <= 3)
        boxes.insert(boxes.end(), { 16, 17 });
    for (int i : boxes) {
        c.txtOutput[static_cast<size_t>(i)]->setLeftCaption(
                QString::fromUtf8(outputCaption(i, solutionMethod, channelFlowMethod)));
    }
}

} // namespace

QSize LayoutInputPage(const InputPageControls &c, int solutionMethod, int channelFlowMethod,
                      const PageUnits &units)
{
    alignInputBoxes(c, units);
    PageWalk walk(units);
    const int boxLeft = units.margin + units.indent;
    std::vector<QLabel *> headings;
    for (int section = 0; section <= 9; ++section) {
        if (section > 0
            && !PageRules::isInputSectionShown(section, solutionMethod, channelFlowMethod)) {
            hideInputSection(c, section);
            continue;
        }
        int gap = units.boxGap;
        if (section > 0) {
            QLabel *heading = c.lblInput[static_cast<size_t>(section)];
            walk.place(heading, units.margin, units.headingGap);
            headings.push_back(heading);
            gap = units.underHeading;
        }
        if (QWidget *content = sectionContent(c, section))
            walk.place(content, boxLeft, gap);
        const InputSection &boxes = kInputSections[section];
        if (boxes.firstBox != 0)
            placeInputBoxes(c, walk, boxes.firstBox, boxes.lastBox, solutionMethod,
                            channelFlowMethod, units, gap);
    }
    walk.placeBeside(c.cmdToday, c.txtInput[3], true);
    walk.placeBeside(c.cmdHelp[1], c.txtInput[18], false);
    walk.placeBeside(c.cmdHelp[2], c.txtInput[19], false);
    stretchHeadings(headings, walk, units);
    const QSize size = walk.panelSize();
    c.panel->resize(size);
    return size;
}

QSize LayoutResultsPage(const ResultsPageControls &c, int solutionMethod, int channelFlowMethod,
                        const PageUnits &units)
{
    setResultCaptions(c, solutionMethod, channelFlowMethod);
    std::vector<tvrEditBox *> boxes(c.txtOutput.begin() + 1, c.txtOutput.end());
    alignColumns(boxes, std::vector<int>(boxes.size(), kResultWidthInX * units.xWidth), units);

    PageWalk walk(units);
    std::vector<QLabel *> headings;
    for (int group = 1; group <= 5; ++group) {
        QLabel *heading = c.lblOutput[static_cast<size_t>(group)];
        const bool shown = PageRules::isOutputHeadingShown(group, solutionMethod);
        heading->setHidden(!shown);
        int gap = units.underHeading;
        if (shown) {
            walk.place(heading, units.margin, units.headingGap);
            headings.push_back(heading);
        }
        const OutputGroup &members = kOutputGroups[static_cast<size_t>(group)];
        for (int i = members.first; i <= members.last; ++i) {
            tvrEditBox *box = c.txtOutput[static_cast<size_t>(i)];
            if (!PageRules::isOutputBoxShown(i, solutionMethod, channelFlowMethod)) {
                box->hide();
                continue;
            }
            walk.place(box, units.margin + units.indent, gap);
            gap = units.boxGap;
        }
    }
    stretchHeadings(headings, walk, units);
    const QSize size = walk.panelSize();
    c.panel->resize(size);
    return size;
}

} // namespace PageLayout
