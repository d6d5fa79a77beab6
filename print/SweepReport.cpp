#include "SweepReport.h"

#include "InputTable.h"

#include <QStringList>

#include <algorithm>

namespace {
QString qText(const std::string &text)
{
    return QString::fromStdString(text);
}

ReportField field(const QString &caption, const QString &value, const QString &unit = {},
                  bool numeric = true)
{
    ReportField f;
    f.caption = caption;
    f.value = value;
    f.unit = unit;
    f.numeric = numeric;
    return f;
}

void addAxisFields(ReportGroup &group, const SweepAxis &axis)
{
    const QString unit = QString::fromUtf8(inputBox(axis.box).unit);
    group.fields.push_back(field(QStringLiteral("Swept input"),
                                 qText(inputCaptionWithSymbol(axis.box)), {}, false));
    group.fields.push_back(field(QStringLiteral("From"), qText(pointText(axis.from)), unit));
    group.fields.push_back(field(QStringLiteral("To"), qText(pointText(axis.to)), unit));
    group.fields.push_back(field(QStringLiteral("Points"), QString::number(axis.points)));
    group.fields.push_back(field(QStringLiteral("Spacing"),
                                 axis.spacing == Spacing::Logarithmic
                                         ? QStringLiteral("logarithmic")
                                         : QStringLiteral("linear"),
                                 {}, false));
}

// "B = 2.5, n = 0.03": the point's inputs to seven digits, as the result boxes show numbers
// (the CSV export keeps every digit).
QString pointCaption(const SweepResult &sweep, const SweepRow &row)
{
    QStringList parts;
    for (size_t a = 0; a < sweep.axes.size(); ++a)
        parts << qText(inputSymbol(sweep.axes[a].box) + " = ")
                        + QString::number(row.inputs[a], 'g', 7);
    return parts.join(QStringLiteral(", "));
}

ReportGroup pointsGroup(const SweepResult &sweep, int resultColumn, size_t calculated)
{
    const ResultColumn &result = sweep.columns[static_cast<size_t>(resultColumn)];
    ReportGroup group;
    group.heading = qText(result.caption);
    const size_t shown = std::min(calculated, static_cast<size_t>(kSweepReportRows));
    for (size_t k = 0; k < shown; ++k) {
        const size_t i = shown > 1 ? k * (calculated - 1) / (shown - 1) : 0;
        const SweepRow &row = sweep.rows[i];
        const bool ok = row.status == PointStatus::Ok;
        group.fields.push_back(field(pointCaption(sweep, row),
                                     ok ? qText(row.results[static_cast<size_t>(resultColumn)])
                                        : qText(row.message),
                                     ok ? qText(result.unit) : QString(), ok));
    }
    return group;
}
} // namespace

ReportSection sweepReportSection(const SweepResult &sweep, int resultColumn,
                                 const SolveOutcome *solved)
{
    ReportSection section;
    section.heading = QStringLiteral("IV.  DESIGN EXPLORER");
    section.keepTogether = true;
    ReportGroup swept;
    swept.heading = QStringLiteral("Sweep");
    for (const SweepAxis &axis : sweep.axes)
        addAxisFields(swept, axis);
    size_t calculated = 0;
    while (calculated < sweep.rows.size() && sweep.rows[calculated].status != PointStatus::NotRun)
        ++calculated;
    swept.fields.push_back(field(QStringLiteral("Points calculated"),
                                 QStringLiteral("%1 of %2").arg(calculated).arg(sweep.rows.size()),
                                 {}, false));
    section.groups.push_back(swept);
    if (resultColumn >= 0 && resultColumn < static_cast<int>(sweep.columns.size())
        && calculated > 0)
        section.groups.push_back(pointsGroup(sweep, resultColumn, calculated));
    if (solved && !solved->message.empty()) {
        ReportGroup solve;
        solve.heading = QStringLiteral("Solve for a Target");
        QString message = qText(solved->message);
        message[0] = message[0].toUpper();
        solve.fields.push_back(
                field(solved->reached ? QStringLiteral("Found") : QStringLiteral("Not reached"),
                      message + QLatin1Char('.'), {}, false));
        section.groups.push_back(solve);
    }
    return section;
}
