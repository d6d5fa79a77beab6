#include "PageFurniture.h"

#include <algorithm>

namespace {
constexpr double kRuleWidth = 0.045; // in body lines, as the thin rules of the report body
} // namespace

PageFurniture::PageFurniture(const QRectF &area, const TextMeasure &measure)
    : m_area(area)
    , m_measure(measure)
    , m_lineHeight(measure.lineHeight(ReportFont::Furniture))
{
    const double unit = measure.lineHeight(ReportFont::Body);
    m_bodyTop = area.top() + m_lineHeight + 1.0 * unit;
    m_bodyBottom = area.bottom() - m_lineHeight - 1.0 * unit;
}

void PageFurniture::addTo(ReportPage &page, const ReportContent &content, int number,
                          int count) const
{
    const double unit = m_measure.lineHeight(ReportFont::Body);
    const double gap = unit;
    const double left = m_area.left();
    const double width = m_area.width();
    auto place = [&](const QString &text, double y, Qt::Alignment alignment, double room) {
        const double x = alignment == Qt::AlignRight ? m_area.right() - room : left;
        page.texts.push_back(
                { QRectF(x, y, room, m_lineHeight), text, ReportFont::Furniture, alignment });
    };

    const QString program = content.programName;
    const double programWidth = std::min(width, m_measure.width(program, ReportFont::Furniture));
    place(elideText(program, ReportFont::Furniture, programWidth, ElideSide::Right, m_measure),
          m_area.top(), Qt::AlignLeft, programWidth);
    const double jobRoom = width - programWidth - gap;
    if (jobRoom > 0 && !content.jobName.isEmpty())
        place(elideText(content.jobName, ReportFont::Furniture, jobRoom, ElideSide::Right,
                        m_measure),
              m_area.top(), Qt::AlignRight, jobRoom);
    const double headerRule = m_area.top() + m_lineHeight + 0.25 * unit;
    page.rules.push_back({ QLineF(left, headerRule, m_area.right(), headerRule), kRuleWidth * unit,
                           RuleStyle::Solid });

    const double footerTop = m_area.bottom() - m_lineHeight;
    const double footerRule = footerTop - 0.25 * unit;
    page.rules.push_back({ QLineF(left, footerRule, m_area.right(), footerRule), kRuleWidth * unit,
                           RuleStyle::Solid });
    const QString pageText = QStringLiteral("Page %1 of %2").arg(number).arg(count);
    const double pageWidth = std::min(width, m_measure.width(pageText, ReportFont::Furniture));
    place(pageText, footerTop, Qt::AlignRight, pageWidth);
    const double fileRoom = width - pageWidth - gap;
    if (fileRoom > 0)
        place(elideText(content.projectFileName, ReportFont::Furniture, fileRoom, ElideSide::Left,
                        m_measure),
              footerTop, Qt::AlignLeft, fileRoom);
}
