#pragma once

#include "ReportLayout.h"
#include "TextFitting.h"

#include <QString>

// A measure in which every character is `characterWidth(font)` wide and every line
// `lineHeight(font)` high: the layout can be checked by hand arithmetic.
class FixedMeasure : public TextMeasure
{
public:
    double width(const QString &text, ReportFont font) const override;
    double lineHeight(ReportFont font) const override;
    static double characterWidth(ReportFont font);
};

// A US Letter sheet in points with half-inch margins.
PageFrame letterFrame(double margin = 36);
