#include "ReportLayout.h"

#include "PageFurniture.h"
#include "ReportBlocks.h"

#include <algorithm>

QMarginsF usableMargins(const PageFrame &frame)
{
    QMarginsF margins(std::max(0.0, frame.margins.left()), std::max(0.0, frame.margins.top()),
                      std::max(0.0, frame.margins.right()), std::max(0.0, frame.margins.bottom()));
    // Scale a pair of opposite margins down so that at least a third of the sheet stays between
    // them: a Margins.ini written in the wrong unit then still gives a readable report.
    auto fit = [](double length, double first, double second, auto apply) {
        const double allowed = length * 2.0 / 3.0;
        const double total = first + second;
        if (total > allowed && total > 0)
            apply(allowed / total);
    };
    fit(frame.paper.width(), margins.left(), margins.right(), [&](double scale) {
        margins.setLeft(margins.left() * scale);
        margins.setRight(margins.right() * scale);
    });
    fit(frame.paper.height(), margins.top(), margins.bottom(), [&](double scale) {
        margins.setTop(margins.top() * scale);
        margins.setBottom(margins.bottom() * scale);
    });
    return margins;
}

namespace {

void appendShifted(ReportPage &page, const ReportPage &items, double dy)
{
    for (PlacedText text : items.texts) {
        text.rect.translate(0, dy);
        page.texts.push_back(text);
    }
    for (PlacedRule rule : items.rules) {
        rule.line.translate(0, dy);
        page.rules.push_back(rule);
    }
    for (QRectF shade : items.shades)
        page.shades.push_back(shade.translated(0, dy));
}

// Height of block `first` together with the blocks it must stay with. A kept block that starts
// a run fitting on a page brings its whole run, since the run will not break: a heading then
// moves with the group it heads instead of ending a page alone.
double keptHeight(const std::vector<ReportBlock> &blocks, size_t first, double pageHeight)
{
    double height = blocks[first].height;
    for (size_t i = first; blocks[i].keepWithNext && i + 1 < blocks.size(); ++i) {
        const ReportBlock &next = blocks[i + 1];
        if (next.runHeight > 0 && next.runHeight <= pageHeight)
            return height + next.spaceBefore + next.runHeight;
        height += next.spaceBefore + next.height;
    }
    return height;
}

// Fills pages top to bottom between `top` and `bottom`. A block that does not fit (with the
// blocks it keeps with, or with its whole run when the run fits on a page) starts a new page,
// unless the page is still empty: an oversized block is then placed anyway, so that the layout
// always moves on. A block that opens a page inside a
// table first repeats the table's header.
std::vector<ReportPage> paginate(const BlockList &list, double top, double bottom)
{
    std::vector<ReportPage> pages(1);
    double y = top;
    bool empty = true;
    for (size_t i = 0; i < list.blocks.size(); ++i) {
        const ReportBlock &block = list.blocks[i];
        const double before = empty ? 0 : block.spaceBefore;
        double needed = keptHeight(list.blocks, i, bottom - top);
        if (block.runHeight <= bottom - top)
            needed = std::max(needed, block.runHeight);
        if (!empty && y + before + needed > bottom) {
            pages.emplace_back();
            y = top;
            empty = true;
        }
        if (empty && block.repeatHeader >= 0) {
            const ReportBlock &header = list.repeatHeaders[static_cast<size_t>(block.repeatHeader)];
            appendShifted(pages.back(), header.items, y);
            y += header.height;
        } else if (!empty) {
            y += block.spaceBefore;
        }
        appendShifted(pages.back(), block.items, y);
        y += block.height;
        empty = false;
    }
    return pages;
}

// The page of the channel drawings: its title, then the three drawings sharing the height left.
ReportPage channelViewsPage(const QRectF &body, const TextMeasure &measure)
{
    ReportPage page;
    const double titleHeight = measure.lineHeight(ReportFont::Section);
    page.texts.push_back({ QRectF(body.left(), body.top(), body.width(), titleHeight),
                           QString::fromUtf8(kChannelViewsTitle), ReportFont::Section,
                           Qt::AlignLeft });
    const double gap = measure.lineHeight(ReportFont::Body);
    const double top = body.top() + titleHeight + gap;
    const double count = static_cast<double>(kChannelViews.size());
    const double height = (body.bottom() - top - gap * (count - 1)) / count;
    double y = top;
    for (const ChannelView view : kChannelViews) {
        page.figures.push_back({ QRectF(body.left(), y, body.width(), height), view });
        y += height + gap;
    }
    return page;
}

} // namespace

const char *const kChannelViewsTitle = "Channel views";

std::vector<ReportPage> layoutReport(const ReportContent &content, const PageFrame &frame,
                                     const TextMeasure &measure)
{
    const QMarginsF margins = usableMargins(frame);
    const QRectF area(margins.left(), margins.top(),
                      frame.paper.width() - margins.left() - margins.right(),
                      frame.paper.height() - margins.top() - margins.bottom());
    const PageFurniture furniture(area, measure);
    const BlockList list = buildReportBlocks(content, area.left(), area.width(), measure);
    std::vector<ReportPage> pages = paginate(list, furniture.bodyTop(), furniture.bodyBottom());
    if (content.channelViews) {
        const QRectF body(area.left(), furniture.bodyTop(), area.width(),
                          furniture.bodyBottom() - furniture.bodyTop());
        pages.push_back(channelViewsPage(body, measure));
    }
    const int count = static_cast<int>(pages.size());
    for (int i = 0; i < count; ++i)
        furniture.addTo(pages[static_cast<size_t>(i)], content, i + 1, count);
    return pages;
}
