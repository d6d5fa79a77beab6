#include "ReportBlocks.h"

#include "UserTexts.h"

#include <algorithm>

namespace {

// Every distance below is a multiple of the body text's line height, so the report keeps its
// proportions on any device resolution.
constexpr double kThinRule = 0.045;
constexpr double kHeavyRule = 0.12;
constexpr double kFieldIndent = 1.5;
constexpr double kRowPadding = 0.15;
constexpr double kColumnGap = 1.5;

struct FieldColumns
{
    double captionLeft = 0;
    double captionWidth = 0;
    double valueLeft = 0;
    double valueWidth = 0;
    double unitLeft = 0;
    double unitWidth = 0;
};

class BlockBuilder
{
public:
    BlockBuilder(double left, double width, const TextMeasure &measure)
        : m_left(left)
        , m_width(width)
        , m_measure(measure)
        , m_unit(measure.lineHeight(ReportFont::Body))
    { }

    BlockList build(const ReportContent &content);

private:
    double right() const { return m_left + m_width; }
    double lineHeight(ReportFont font) const { return m_measure.lineHeight(font); }
    double textWidth(const QString &text, ReportFont font) const
    {
        return m_measure.width(text, font);
    }

    double placeLines(ReportPage &page, const QStringList &lines, double x, double y, double width,
                      ReportFont font, Qt::Alignment alignment = Qt::AlignLeft) const;
    void addRule(ReportPage &page, double y, double thickness, double left, double right) const;
    ReportBlock &newBlock(double spaceBefore, bool keepWithNext = false);

    void measureColumns(const ReportContent &content);
    void addTitle(const ReportContent &content);
    void addSectionHeading(const QString &text, double spaceBefore);
    void addGroupHeading(const QString &text);
    void addWrappedLine(const QString &text, double x, ReportFont font);
    void addField(const ReportField &field);
    void addRatingCurve(const ReportGroup &group);
    void markRun(size_t first);
    ReportBlock ratingHeader(const QString &heading, const std::vector<double> &columns) const;

    double m_left;
    double m_width;
    const TextMeasure &m_measure;
    double m_unit;
    FieldColumns m_columns;
    BlockList m_list;
};

double BlockBuilder::placeLines(ReportPage &page, const QStringList &lines, double x, double y,
                                double width, ReportFont font, Qt::Alignment alignment) const
{
    const double height = lineHeight(font);
    for (const QString &line : lines) {
        page.texts.push_back({ QRectF(x, y, width, height), line, font, alignment });
        y += height;
    }
    return height * static_cast<double>(lines.size());
}

void BlockBuilder::addRule(ReportPage &page, double y, double thickness, double left,
                           double right) const
{
    page.rules.push_back({ QLineF(left, y, right, y), thickness * m_unit, RuleStyle::Solid });
}

ReportBlock &BlockBuilder::newBlock(double spaceBefore, bool keepWithNext)
{
    m_list.blocks.emplace_back();
    ReportBlock &block = m_list.blocks.back();
    block.spaceBefore = spaceBefore * m_unit;
    block.keepWithNext = keepWithNext;
    return block;
}

// Caption column as wide as the widest caption (but leaving room for values and units), value
// column as wide as the widest number, units in what is left.
void BlockBuilder::measureColumns(const ReportContent &content)
{
    double caption = 0;
    double value = textWidth(QStringLiteral("00000000.000"), ReportFont::BodyBold);
    double unit = textWidth(QStringLiteral("feet per second"), ReportFont::Body);
    for (const ReportSection &section : content.sections) {
        for (const ReportGroup &group : section.groups) {
            for (const ReportField &field : group.fields) {
                caption = std::max(caption, textWidth(field.caption, ReportFont::Body));
                if (field.numeric)
                    value = std::max(value, textWidth(field.value, ReportFont::BodyBold));
            }
        }
    }
    FieldColumns &c = m_columns;
    const double gap = kColumnGap * m_unit;
    c.captionLeft = m_left + kFieldIndent * m_unit;
    const double room = right() - c.captionLeft - 2 * gap;
    c.valueWidth = std::min(value, room * 0.3);
    c.unitWidth = std::min(unit, room * 0.25);
    c.captionWidth = std::min(caption, room - c.valueWidth - c.unitWidth);
    c.valueLeft = c.captionLeft + c.captionWidth + gap;
    c.unitLeft = c.valueLeft + c.valueWidth + gap * 0.4;
    c.unitWidth = right() - c.unitLeft;
}

void BlockBuilder::addTitle(const ReportContent &content)
{
    ReportBlock &block = newBlock(0);
    ReportPage &page = block.items;
    double y
            = placeLines(page, wrapText(content.programName, ReportFont::Title, m_width, m_measure),
                         m_left, 0, m_width, ReportFont::Title);
    y += placeLines(page, wrapText(content.subtitle, ReportFont::Subtitle, m_width, m_measure),
                    m_left, y, m_width, ReportFont::Subtitle);
    y += 0.3 * m_unit;
    addRule(page, y, kHeavyRule, m_left, right());
    y += 0.5 * m_unit;

    double labelWidth = 0;
    for (const ReportField &field : content.titleFields)
        labelWidth = std::max(labelWidth, textWidth(field.caption, ReportFont::Body));
    const double valueLeft = m_left + labelWidth + kColumnGap * 2 * m_unit;
    const double valueWidth = right() - valueLeft;
    for (const ReportField &field : content.titleFields) {
        placeLines(page, { field.caption }, m_left, y, labelWidth, ReportFont::Body);
        y += placeLines(page, wrapText(field.value, ReportFont::BodyBold, valueWidth, m_measure),
                        valueLeft, y, valueWidth, ReportFont::BodyBold);
        y += 0.15 * m_unit;
    }
    y += 0.3 * m_unit;
    addRule(page, y, kThinRule, m_left, right());
    block.height = y;
}

void BlockBuilder::addSectionHeading(const QString &text, double spaceBefore)
{
    ReportBlock &block = newBlock(spaceBefore, true);
    double y = placeLines(block.items, wrapText(text, ReportFont::Section, m_width, m_measure),
                          m_left, 0, m_width, ReportFont::Section);
    y += 0.15 * m_unit;
    addRule(block.items, y, kThinRule * 1.5, m_left, right());
    block.height = y + 0.35 * m_unit;
}

void BlockBuilder::addGroupHeading(const QString &text)
{
    ReportBlock &block = newBlock(0.45, true);
    block.height = placeLines(block.items, wrapText(text, ReportFont::Group, m_width, m_measure),
                              m_left, 0, m_width, ReportFont::Group)
            + 0.1 * m_unit;
}

// One line of text at `x` wrapping to the right edge: a chosen option, or a section's note.
void BlockBuilder::addWrappedLine(const QString &text, double x, ReportFont font)
{
    ReportBlock &block = newBlock(0);
    const double width = right() - x;
    const double y = kRowPadding / 2 * m_unit;
    block.height
            = placeLines(block.items, wrapText(text, font, width, m_measure), x, y, width, font)
            + kRowPadding * m_unit;
}

// A caption, a dotted leader, the value and its unit. Numbers align right in their column;
// free text (the lining type) starts at the column's left edge and may run into the unit column,
// which such fields leave empty.
void BlockBuilder::addField(const ReportField &field)
{
    const FieldColumns &c = m_columns;
    const ReportFont valueFont = field.emphasised ? ReportFont::BodyBold : ReportFont::Body;
    ReportBlock &block = newBlock(0);
    ReportPage &page = block.items;
    const double top = kRowPadding / 2 * m_unit;

    const QStringList caption
            = wrapText(field.caption, ReportFont::Body, c.captionWidth, m_measure);
    double height = placeLines(page, caption, c.captionLeft, top, c.captionWidth, ReportFont::Body);

    const double valueWidth
            = field.numeric || !field.unit.isEmpty() ? c.valueWidth : right() - c.valueLeft;
    const QStringList value = wrapText(field.value, valueFont, valueWidth, m_measure);
    const Qt::Alignment alignment = field.numeric ? Qt::AlignRight : Qt::AlignLeft;
    height = std::max(height,
                      placeLines(page, value, c.valueLeft, top, valueWidth, valueFont, alignment));
    if (!field.unit.isEmpty()) {
        const QStringList unit = wrapText(field.unit, ReportFont::Body, c.unitWidth, m_measure);
        height = std::max(height,
                          placeLines(page, unit, c.unitLeft, top, c.unitWidth, ReportFont::Body));
    }

    // The leader joins the caption's only line to the value on the same line.
    const double valueStart = field.numeric
            ? c.valueLeft + valueWidth - textWidth(value.front(), valueFont)
            : c.valueLeft;
    const double leaderLeft
            = c.captionLeft + textWidth(caption.front(), ReportFont::Body) + 0.4 * m_unit;
    const double leaderRight = valueStart - 0.4 * m_unit;
    if (caption.size() == 1 && leaderRight - leaderLeft > m_unit) {
        const double y = top + 0.78 * m_unit;
        page.rules.push_back({ QLineF(leaderLeft, y, leaderRight, y), kThinRule * 1.6 * m_unit,
                               RuleStyle::Dotted });
    }
    if (!field.note.isEmpty()) {
        const double x = c.captionLeft + kFieldIndent * m_unit;
        height += placeLines(page, wrapText(field.note, valueFont, right() - x, m_measure), x,
                             top + height, right() - x, valueFont);
    }
    block.height = height + kRowPadding * m_unit;
}

ReportBlock BlockBuilder::ratingHeader(const QString &heading,
                                       const std::vector<double> &columns) const
{
    ReportBlock header;
    ReportPage &page = header.items;
    double y = placeLines(page, wrapText(heading, ReportFont::Group, m_width, m_measure), m_left, 0,
                          m_width, ReportFont::Group)
            + 0.35 * m_unit;
    const QStringList titles[] = {
        { QStringLiteral("Point"), QString() },
        { QString::fromUtf8(kRatingDepthTitle), QString::fromUtf8(kRatingDepthUnit) },
        { QString::fromUtf8(kRatingDischargeTitle), QString::fromUtf8(kRatingDischargeUnit) },
    };
    const double bandHeight = 2 * lineHeight(ReportFont::TableHeader) + 0.4 * m_unit;
    page.shades.push_back(QRectF(columns.front(), y, columns.back() - columns.front(), bandHeight));
    addRule(page, y, kThinRule * 1.5, columns.front(), columns.back());
    for (size_t i = 0; i < 3; ++i) {
        placeLines(page, titles[i], columns[i], y + 0.2 * m_unit, columns[i + 1] - columns[i],
                   ReportFont::TableHeader, Qt::AlignHCenter);
    }
    y += bandHeight;
    addRule(page, y, kThinRule, columns.front(), columns.back());
    header.height = y;
    return header;
}

// The rating curve as a three-column table indented under its heading. Every row is its own
// block, so the table breaks between rows; a page that continues it repeats the heading
// ("(continued)") and the column titles.
void BlockBuilder::addRatingCurve(const ReportGroup &group)
{
    const double pad = m_unit;
    double numberWidth = textWidth(QStringLiteral("Point"), ReportFont::TableHeader);
    double depthWidth
            = std::max(textWidth(QString::fromUtf8(kRatingDepthTitle), ReportFont::TableHeader),
                       textWidth(QString::fromUtf8(kRatingDepthUnit), ReportFont::TableHeader));
    double dischargeWidth
            = textWidth(QString::fromUtf8(kRatingDischargeTitle), ReportFont::TableHeader);
    for (const ReportRatingRow &row : group.ratingCurve) {
        depthWidth = std::max(depthWidth, textWidth(row.depth, ReportFont::Body));
        dischargeWidth = std::max(dischargeWidth, textWidth(row.discharge, ReportFont::Body));
    }
    const double tableLeft = m_columns.captionLeft;
    const double available = right() - tableLeft;
    std::vector<double> columns { tableLeft };
    for (double width : { numberWidth, depthWidth, dischargeWidth })
        columns.push_back(columns.back() + std::min(width + 2 * pad, available / 3));

    const size_t header = m_list.blocks.size();
    m_list.blocks.push_back(ratingHeader(group.heading, columns));
    m_list.blocks.back().spaceBefore = 0.45 * m_unit;
    m_list.blocks.back().keepWithNext = true;
    m_list.repeatHeaders.push_back(
            ratingHeader(group.heading + QStringLiteral(" (continued)"), columns));
    const int repeat = static_cast<int>(m_list.repeatHeaders.size()) - 1;

    const size_t count = group.ratingCurve.size();
    for (size_t i = 0; i < count; ++i) {
        const ReportRatingRow &row = group.ratingCurve[i];
        ReportBlock &block = newBlock(0);
        block.repeatHeader = repeat;
        const QString cells[] = { QString::number(row.row), row.depth, row.discharge };
        double height = 0;
        for (size_t c = 0; c < 3; ++c) {
            const double width = columns[c + 1] - columns[c] - 2 * pad;
            const QStringList lines = wrapText(cells[c], ReportFont::Body, width, m_measure);
            height = std::max(height,
                              placeLines(block.items, lines, columns[c] + pad, 0.1 * m_unit, width,
                                         ReportFont::Body, Qt::AlignRight));
        }
        block.height = height + 0.2 * m_unit;
        if (i % 2 == 1)
            block.items.shades.push_back(
                    QRectF(columns.front(), 0, columns.back() - columns.front(), block.height));
        if (i + 1 == count)
            addRule(block.items, block.height, kThinRule * 1.5, columns.front(), columns.back());
        // No page holds fewer than three rows at the start or two at the end of the table.
        block.keepWithNext = i + 1 < count && (i < 2 || i + 2 == count);
    }
    markRun(header);
    if (count == 0)
        addWrappedLine(QStringLiteral("(no rows)"), tableLeft, ReportFont::Body);
}

// Marks the blocks from `first` to the last one added as a run that should not break.
void BlockBuilder::markRun(size_t first)
{
    double height = 0;
    for (size_t i = first; i < m_list.blocks.size(); ++i)
        height += (i == first ? 0 : m_list.blocks[i].spaceBefore) + m_list.blocks[i].height;
    m_list.blocks[first].runHeight = height;
}

BlockList BlockBuilder::build(const ReportContent &content)
{
    measureColumns(content);
    addTitle(content);
    for (const ReportSection &section : content.sections) {
        const size_t first = m_list.blocks.size();
        addSectionHeading(section.heading, 1.1);
        if (!section.note.isEmpty())
            addWrappedLine(section.note, m_columns.captionLeft, ReportFont::Body);
        for (const ReportGroup &group : section.groups) {
            if (group.isRatingCurve) {
                addRatingCurve(group);
                continue;
            }
            addGroupHeading(group.heading);
            const size_t heading = m_list.blocks.size() - 1;
            if (!group.choice.isEmpty())
                addWrappedLine(group.choice, m_columns.captionLeft, ReportFont::Body);
            for (const ReportField &field : group.fields)
                addField(field);
            markRun(heading); // a reader checks a group's fields together
        }
        if (section.keepTogether)
            markRun(first);
    }
    return m_list;
}

} // namespace

BlockList buildReportBlocks(const ReportContent &content, double left, double width,
                            const TextMeasure &measure)
{
    return BlockBuilder(left, width, measure).build(content);
}
