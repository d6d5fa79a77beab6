#include "ReportFixtures.h"

double FixedMeasure::characterWidth(ReportFont font)
{
    switch (font) {
    case ReportFont::Title:
        return 10;
    case ReportFont::Section:
        return 8;
    case ReportFont::Furniture:
        return 4;
    default:
        return 6;
    }
}

double FixedMeasure::width(const QString &text, ReportFont font) const
{
    return characterWidth(font) * static_cast<double>(text.size());
}

double FixedMeasure::lineHeight(ReportFont font) const
{
    return font == ReportFont::Title ? 20 : 12;
}

PageFrame letterFrame(double margin)
{
    return { QSizeF(612, 792), QMarginsF(margin, margin, margin, margin) };
}
