#include "ReportContent.h"

#include "ReportChecks.h"
#include "Calculate.h"
#include "InputTable.h"
#include "NumberText.h"
#include "OutputTable.h"
#include "RatingCurve.h"
#include "UserTexts.h"

#include <QDir>
#include <QFileInfo>

namespace {

// Headings of the Input Data page, by their lblInput index.
enum InputHeading {
    SolutionMethodHeading = 1,
    ChannelGeometryHeading,
    EfficiencyHeading,
    ChannelFlowHeading,
    RunoffHydrographHeading,
    ChannelFlowRateHeading,
    FlowVelocityHeading,
    AquiferHeading,
    RatingCurveHeading,
};

QString fromStd(const std::string &text)
{
    return QString::fromStdString(trimBlanks(text));
}

ReportField inputField(const SwaleProject &project, int index)
{
    const InputBoxInfo &box = inputBox(index);
    ReportField field;
    field.caption = QString::fromUtf8(box.caption);
    field.value = fromStd(project.inputText[static_cast<size_t>(index)]);
    field.unit = QString::fromUtf8(box.unit);
    field.numeric = box.kind == InputKind::Number;
    return field;
}

ReportGroup inputGroup(const SwaleProject &project, int heading, std::initializer_list<int> boxes)
{
    ReportGroup group;
    group.heading = QString::fromUtf8(kInputSectionHeadings[static_cast<size_t>(heading)]);
    for (int index : boxes)
        group.fields.push_back(inputField(project, index));
    return group;
}

QString chosenCaption(int index, const char *const *captions, int count)
{
    if (index < 1 || index > count)
        return QStringLiteral("(none chosen)");
    return QString::fromUtf8(captions[index]);
}

ReportGroup choiceGroup(int heading, const QString &choice)
{
    ReportGroup group;
    group.heading = QString::fromUtf8(kInputSectionHeadings[static_cast<size_t>(heading)]);
    group.choice = choice;
    return group;
}

ReportGroup ratingCurveGroup(const SwaleProject &project)
{
    ReportGroup group;
    group.heading = QString::fromUtf8(kInputSectionHeadings[RatingCurveHeading]);
    group.isRatingCurve = true;
    const int rows = CountRatingCurveRows(project);
    for (int row = 1; row <= rows; ++row) {
        group.ratingCurve.push_back({ row, fromStd(project.ratingCurveCell(row, 1)),
                                      fromStd(project.ratingCurveCell(row, 2)) });
    }
    return group;
}

// The inputs in the order and under the headings of the Input Data page, skipping the sections
// and boxes that the chosen methods do not ask for.
ReportSection inputSection(const SwaleProject &project)
{
    const int method = project.solutionMethod;
    const int flow = project.channelFlowMethod;
    const bool infiltration = method == 1 || method == 2;

    ReportSection section;
    section.heading = QStringLiteral("I.  INPUT DATA");
    section.groups.push_back(choiceGroup(
            SolutionMethodHeading,
            chosenCaption(method, kSolutionMethodCaptions.data(), kSolutionMethodCount)));
    if (method == 2)
        section.groups.push_back(inputGroup(project, ChannelGeometryHeading, { 4, 5, 6, 7, 8 }));
    else
        section.groups.push_back(inputGroup(project, ChannelGeometryHeading, { 5, 6, 7, 8 }));
    if (method == 1)
        section.groups.push_back(inputGroup(project, EfficiencyHeading, { 9 }));
    section.groups.push_back(choiceGroup(
            ChannelFlowHeading,
            chosenCaption(flow, kChannelFlowMethodCaptions.data(), kChannelFlowMethodCount)));
    if (flow == 1)
        section.groups.push_back(
                inputGroup(project, RunoffHydrographHeading, { 10, 11, 12, 13, 14 }));
    if (flow == 2)
        section.groups.push_back(inputGroup(project, ChannelFlowRateHeading, { 15, 16 }));
    section.groups.push_back(inputGroup(project, FlowVelocityHeading, { 17, 18, 19 }));
    if (infiltration)
        section.groups.push_back(inputGroup(project, AquiferHeading, { 20, 21, 22, 23 }));
    if (method == 3)
        section.groups.push_back(ratingCurveGroup(project));
    return section;
}

ReportSection resultsSection(const SwaleProject &project)
{
    const int method = project.solutionMethod;
    const int flow = project.channelFlowMethod;

    ReportSection section;
    section.heading = QStringLiteral("II.  RESULTS");
    section.keepTogether = true; // the results are read as one sheet
    if (!project.resultsShown) {
        section.note = QStringLiteral("No results: the inputs above have not been calculated.");
        return section;
    }
    for (int g = 1; g < static_cast<int>(kOutputGroups.size()); ++g) {
        ReportGroup group;
        group.heading = QString::fromUtf8(resultGroupTitle(g, method, flow));
        const OutputGroup &range = kOutputGroups[static_cast<size_t>(g)];
        for (int index = range.first; index <= range.last; ++index) {
            if (!isOutputShown(index, method, flow))
                continue;
            ReportField field;
            field.caption = QString::fromUtf8(outputCaption(index, method, flow));
            field.value = fromStd(project.outputText[static_cast<size_t>(index)]);
            field.unit = QString::fromUtf8(outputBox(index).unit);
            field.emphasised = g == 1;
            group.fields.push_back(field);
        }
        if (!group.fields.empty())
            section.groups.push_back(group);
    }
    return section;
}

std::optional<ChannelViews> channelViewsOf(const SwaleProject &project)
{
    if (!project.resultsShown)
        return std::nullopt;
    const CalculationOutcome outcome = Calculate(project);
    ChannelViews views;
    QString reason;
    if (outcome.status != CalculationOutcome::Status::Ok
        || !buildChannelViews(outcome.record, std::nullopt, views, reason))
        return std::nullopt;
    return views;
}

} // namespace

ReportSource ReportSource::example(const QString &examplePath)
{
    ReportSource source;
    source.exampleName = QFileInfo(examplePath).completeBaseName();
    return source;
}

QString ReportSource::projectFileText() const
{
    if (!filePath.isEmpty())
        return QDir::toNativeSeparators(filePath);
    if (!exampleName.isEmpty())
        return QStringLiteral("Example: ") + exampleName;
    return QStringLiteral("<untitled>");
}

ReportContent buildReportContent(const SwaleProject &project, const ReportSource &source)
{
    ReportContent content;
    content.programName = QString::fromUtf8(kProgramTitle);
    content.subtitle = QStringLiteral("Channel Design Calculations");
    for (int index = 1; index <= 3; ++index) {
        ReportField field = inputField(project, index);
        field.numeric = false;
        content.titleFields.push_back(field);
    }
    const QString fileText = source.projectFileText();
    ReportField fileField;
    fileField.caption = QStringLiteral("Project File");
    fileField.value = fileText;
    fileField.numeric = false;
    content.titleFields.push_back(fileField);
    content.jobName = content.titleFields.front().value;
    content.projectFileName = fileText;
    content.sections.push_back(inputSection(project));
    content.sections.push_back(resultsSection(project));
    if (project.resultsShown)
        content.sections.push_back(checksSection(project));
    content.channelViews = channelViewsOf(project);
    return content;
}
