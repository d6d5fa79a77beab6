#pragma once

#include "ReportContent.h"
#include "ReportLayout.h"
#include "TextFitting.h"

#include <QRectF>

// The page header (program name, job name, a rule) and the footer (a rule, project file,
// "Page i of n") inside the printable area.
class PageFurniture
{
public:
    PageFurniture(const QRectF &area, const TextMeasure &measure);

    double bodyTop() const { return m_bodyTop; }
    double bodyBottom() const { return m_bodyBottom; }
    void addTo(ReportPage &page, const ReportContent &content, int number, int count) const;

private:
    QRectF m_area;
    const TextMeasure &m_measure;
    double m_lineHeight;
    double m_bodyTop;
    double m_bodyBottom;
};
