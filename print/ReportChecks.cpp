#include "ReportChecks.h"

#include "Calculate.h"
#include "HydraulicCheckLines.h"

namespace {
ReportField checkField(const CheckLine &line)
{
    ReportField field;
    field.caption = QString::fromStdString(line.quantity);
    if (!line.symbol.empty())
        field.caption += QStringLiteral(", ") + QString::fromStdString(line.symbol);
    field.value = QString::fromStdString(line.value);
    field.unit = QString::fromStdString(line.unit);
    field.numeric = line.limit.empty() || !line.value.empty();
    field.emphasised = line.fails; // a failing value and its verdict print in bold
    if (!line.limit.empty())
        field.note = QStringLiteral("Limit: ") + QString::fromStdString(line.limit)
                + QStringLiteral(". ");
    if (!line.verdict.empty())
        field.note += QString::fromStdString(line.verdict) + QStringLiteral(".");
    return field;
}

ReportGroup permissibleShearGroup()
{
    ReportGroup group;
    group.heading = QStringLiteral("Typical Permissible Shear Stress by Lining");
    group.choice = QString::fromUtf8(kPermissibleShearSource);
    for (const PermissibleShear &row : kTypicalPermissibleShear) {
        ReportField field;
        field.caption = QString::fromUtf8(row.lining);
        field.value = QString::number(row.shear, 'f', 2);
        field.unit = QString::fromUtf8(kShearUnit);
        group.fields.push_back(field);
    }
    return group;
}
} // namespace

ReportSection checksSection(const SwaleProject &project)
{
    ReportSection section;
    section.heading = QStringLiteral("III.  HYDRAULIC CHECKS");
    section.keepTogether = true; // the checks and the shear table are read side by side
    const CalculationOutcome outcome = Calculate(project);
    if (outcome.status != CalculationOutcome::Status::Ok) {
        section.note = QStringLiteral("Not computed: the inputs above do not calculate.");
        return section;
    }
    const HydraulicChecks checks = computeHydraulicChecks(outcome.record);
    if (!checks.fault.empty()) {
        section.note = QStringLiteral("Not computed: ") + QString::fromStdString(checks.fault);
        return section;
    }
    ReportGroup group;
    group.heading = QStringLiteral("Checks at Normal Depth");
    for (const CheckLine &line : hydraulicCheckLines(checks))
        group.fields.push_back(checkField(line));
    section.groups.push_back(group);
    section.groups.push_back(permissibleShearGroup());
    return section;
}
