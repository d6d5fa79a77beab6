#pragma once

#include "ReportContent.h"
#include "ReportLayout.h"
#include "TextFitting.h"

#include <QFont>
#include <QFontMetricsF>
#include <QMarginsF>
#include <QString>

#include <array>

class QPagedPaintDevice;
class QPaintDevice;
class QPainter;

// The paint step of the report: fonts, measuring on the device, and drawing laid-out pages on
// any paged device (a printer or a PDF writer).

// The font of each face: Arial (Liberation Sans, its metric twin, on Linux).
QFont reportFont(ReportFont font);

// Measures texts with the report's fonts at the resolution of `device`, in device pixels.
class DeviceTextMeasure : public TextMeasure
{
public:
    explicit DeviceTextMeasure(QPaintDevice *device);
    double width(const QString &text, ReportFont font) const override;
    double lineHeight(ReportFont font) const override;

private:
    const QFontMetricsF &metrics(ReportFont font) const;
    std::array<QFontMetricsF, 8> m_metrics;
};

// Draws one laid-out page with `painter`, whose coordinates are the layout's; its channel
// drawings come from `content`, their text sized at `unitsPerPoint` layout units to the point.
void paintReportPage(QPainter &painter, const ReportPage &page, const ReportContent &content,
                     double unitsPerPoint);

// Lays out `content` for the sheet of `device` with margins in points (left, top, right,
// bottom) measured from the sheet's edges, and paints every page. The device is switched to
// full-page mode so that the margins are the report's own. Returns false, with the reason in
// `error`, when painting on the device cannot start (a printer that does not answer).
bool paintReport(QPagedPaintDevice &device, const ReportContent &content,
                 const QMarginsF &marginsInPoints, QString *error = nullptr);
