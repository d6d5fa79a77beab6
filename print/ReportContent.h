#pragma once

#include "ChannelViews.h"
#include "SwaleProject.h"

#include <QString>

#include <optional>
#include <vector>

// What the printed report says, before anything is measured or placed: the texts of the document
// as the window holds them, grouped the way the report presents them.

// One line of the report's tables: a caption, the value exactly as typed or shown, and its unit.
struct ReportField
{
    QString caption;
    QString value;
    QString unit; // "" for a quantity without unit
    bool numeric = true; // numbers align right in the value column; free text aligns left
    bool emphasised = false; // key results of the summary print in bold
    QString note; // a line under the field (a check's limit and verdict); "" for none
};

// One row of the inlet rating curve as typed: data row number, depth (in) and discharge (cfs).
struct ReportRatingRow
{
    int row = 0;
    QString depth;
    QString discharge;
};

// A titled group under a section: the options chosen in it, its fields, or the rating curve.
struct ReportGroup
{
    QString heading;
    QString choice; // the caption of the chosen option ("" for groups of fields)
    std::vector<ReportField> fields;
    std::vector<ReportRatingRow> ratingCurve; // only the rating-curve group has rows
    bool isRatingCurve = false;
};

struct ReportSection
{
    QString heading; // "I.  INPUT DATA", "II.  RESULTS", "III.  HYDRAULIC CHECKS"
    QString note; // a remark printed in place of groups that are missing ("" for none)
    bool keepTogether = false; // starts a new page rather than break, when it fits on one
    std::vector<ReportGroup> groups;
};

struct ReportContent
{
    QString programName;
    QString subtitle;
    std::vector<ReportField> titleFields; // job name, engineer, date, project file
    QString jobName; // repeated in every page header
    QString projectFileName; // repeated in every page footer
    std::vector<ReportSection> sections;
    // The channel drawings of the results, on a page of their own after the sections; none when
    // the results are not shown or the inputs no longer calculate.
    std::optional<ChannelViews> channelViews;
};

// The document a report is of: its project file, or the example it was opened from (examples
// open untitled). A plain path converts to a source naming that file; "" is an untitled project.
struct ReportSource
{
    ReportSource() = default;
    ReportSource(const QString &path) // NOLINT(google-explicit-constructor): a path names the file
        : filePath(path)
    { }
    static ReportSource example(const QString &examplePath);

    // The report's "Project File" line: the path, "Example: " and the example's name, or
    // "<untitled>".
    QString projectFileText() const;

    QString filePath; // "" when untitled
    QString exampleName; // "Roadside swale - required length" for an opened example, else ""
};

// Builds the report of `project` as the window shows it: the inputs that the chosen solution and
// channel-flow methods ask for, under the headings of the Input Data page; the rating curve for
// method 3; the result boxes that the Results page shows, under its group headings and with the
// captions of the chosen options; with results, the hydraulic checks (ReportChecks.h) and the
// channel drawings of the calculation (the inputs are calculated again: the results shown are
// those of the inputs). `source` names the document in the title block and the footers.
ReportContent buildReportContent(const SwaleProject &project, const ReportSource &source);
