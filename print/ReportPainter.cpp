#include "ReportPainter.h"

#include "ChannelViews.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPen>

namespace {

constexpr double kPointsPerInch = 72.0;

struct FontFace
{
    double pointSize;
    bool bold;
};

// Indexed by ReportFont.
constexpr std::array<FontFace, 8> kFaces = { {
        { 16.0, true }, // Title
        { 11.0, false }, // Subtitle
        { 12.5, true }, // Section
        { 10.5, true }, // Group
        { 10.0, false }, // Body
        { 10.0, true }, // BodyBold
        { 9.0, true }, // TableHeader
        { 8.0, false }, // Furniture
} };

const QColor kLeaderColour(0x80, 0x80, 0x80);
const QColor kShadeColour(0xec, 0xec, 0xec);

size_t faceIndex(ReportFont font)
{
    return static_cast<size_t>(font);
}

} // namespace

QFont reportFont(ReportFont font)
{
    const FontFace &face = kFaces[faceIndex(font)];
    QFont result(QStringLiteral("Arial"));
    result.setStyleHint(QFont::SansSerif);
    result.setPointSizeF(face.pointSize);
    result.setBold(face.bold);
    return result;
}

DeviceTextMeasure::DeviceTextMeasure(QPaintDevice *device)
    : m_metrics { QFontMetricsF(reportFont(ReportFont::Title), device),
                  QFontMetricsF(reportFont(ReportFont::Subtitle), device),
                  QFontMetricsF(reportFont(ReportFont::Section), device),
                  QFontMetricsF(reportFont(ReportFont::Group), device),
                  QFontMetricsF(reportFont(ReportFont::Body), device),
                  QFontMetricsF(reportFont(ReportFont::BodyBold), device),
                  QFontMetricsF(reportFont(ReportFont::TableHeader), device),
                  QFontMetricsF(reportFont(ReportFont::Furniture), device) }
{ }

const QFontMetricsF &DeviceTextMeasure::metrics(ReportFont font) const
{
    return m_metrics[faceIndex(font)];
}

double DeviceTextMeasure::width(const QString &text, ReportFont font) const
{
    return metrics(font).horizontalAdvance(text);
}

double DeviceTextMeasure::lineHeight(ReportFont font) const
{
    return metrics(font).lineSpacing();
}

void paintReportPage(QPainter &painter, const ReportPage &page, const ReportContent &content,
                     double unitsPerPoint)
{
    painter.setPen(Qt::NoPen);
    for (const QRectF &shade : page.shades)
        painter.fillRect(shade, kShadeColour);

    for (const PlacedRule &rule : page.rules) {
        QPen pen(rule.style == RuleStyle::Dotted ? kLeaderColour : QColor(Qt::black),
                 rule.thickness);
        if (rule.style == RuleStyle::Dotted) {
            // Round dots three widths apart: a leader, not a dashed line.
            pen.setCapStyle(Qt::RoundCap);
            pen.setDashPattern({ 0.01, 3.0 });
        } else {
            pen.setCapStyle(Qt::FlatCap);
        }
        painter.setPen(pen);
        painter.drawLine(rule.line);
    }

    painter.setPen(Qt::black);
    for (const PlacedText &text : page.texts) {
        painter.setFont(reportFont(text.font));
        painter.drawText(text.rect,
                         static_cast<int>(text.alignment | Qt::AlignTop) | Qt::TextSingleLine,
                         text.text);
    }
    if (content.channelViews) {
        for (const PlacedFigure &figure : page.figures) {
            paintChannelView(painter, figure.rect, *content.channelViews, figure.view,
                             unitsPerPoint);
            painter.setPen(QPen(kLeaderColour, 0.5 * unitsPerPoint));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(figure.rect);
        }
    }
}

bool paintReport(QPagedPaintDevice &device, const ReportContent &content,
                 const QMarginsF &marginsInPoints, QString *error)
{
    QPageLayout layout = device.pageLayout();
    layout.setMode(QPageLayout::FullPageMode);
    layout.setMargins(QMarginsF());
    device.setPageLayout(layout);

    QPainter painter;
    if (!painter.begin(&device)) {
        if (error)
            *error = QStringLiteral("The device could not be opened for painting.");
        return false;
    }
    painter.setRenderHint(QPainter::Antialiasing);

    const double xScale = device.logicalDpiX() / kPointsPerInch;
    const double yScale = device.logicalDpiY() / kPointsPerInch;
    const QRectF paper = device.pageLayout().fullRectPoints();
    PageFrame frame;
    frame.paper = QSizeF(paper.width() * xScale, paper.height() * yScale);
    frame.margins = QMarginsF(marginsInPoints.left() * xScale, marginsInPoints.top() * yScale,
                              marginsInPoints.right() * xScale, marginsInPoints.bottom() * yScale);

    const DeviceTextMeasure measure(&device);
    const std::vector<ReportPage> pages = layoutReport(content, frame, measure);
    for (size_t i = 0; i < pages.size(); ++i) {
        if (i > 0 && !device.newPage()) {
            if (error)
                *error = QStringLiteral("A new page could not be started.");
            painter.end();
            return false;
        }
        paintReportPage(painter, pages[i], content, xScale);
    }
    if (!painter.end()) {
        if (error)
            *error = QStringLiteral("The report could not be finished.");
        return false;
    }
    return true;
}
