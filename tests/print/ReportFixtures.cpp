#include "ReportFixtures.h"

#include "../calc/ProjectFixtures.h"

#include "Calculate.h"

SwaleProject calculatedProject(int solutionMethod, int channelFlowMethod)
{
    SwaleProject project = validProject(solutionMethod, channelFlowMethod);
    const CalculationOutcome outcome = Calculate(project);
    if (outcome.status == CalculationOutcome::Status::Ok) {
        project.outputText = outcome.results;
        project.resultsShown = true;
    }
    return project;
}

void setLongRatingCurve(SwaleProject &project, int rows)
{
    project.clearRatingCurve();
    for (int r = 1; r <= rows; ++r) {
        project.setRatingCurveCell(r, 1, std::to_string(r - 1));
        project.setRatingCurveCell(r, 2, std::to_string(r - 1) + ".0625");
    }
    project.setRatingCurveCell(1, 2, "0");
}

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
