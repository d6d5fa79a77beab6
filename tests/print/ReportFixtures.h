#pragma once

#include "ReportLayout.h"
#include "SwaleProject.h"
#include "TextFitting.h"

#include <QString>

// A valid project of the given methods (the roadside swale of the core's tests), calculated:
// its output texts are the results and resultsShown is set.
SwaleProject calculatedProject(int solutionMethod, int channelFlowMethod = 1);

// Sets `rows` rating-curve rows: depth r - 1 inches, discharge r - 1 + 1/16 cfs. A curve that
// rises slowly enough for the calculation to find the normal depth on it.
void setLongRatingCurve(SwaleProject &project, int rows);

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
