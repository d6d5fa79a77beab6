#include "Fixtures.h"

#include "ReportContent.h"
#include "ReportLayout.h"
#include "TextFitting.h"

#include <QTest>

#include <set>

namespace {

const double kEpsilon = 1e-6;

// A measure in which every character is `characterWidth(font)` wide and every line 20 (title) or
// 12 high: the layout can be checked by hand arithmetic.
class FixedMeasure : public TextMeasure
{
public:
    static double characterWidth(ReportFont font)
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
    double width(const QString &text, ReportFont font) const override
    {
        return characterWidth(font) * static_cast<double>(text.size());
    }
    double lineHeight(ReportFont font) const override
    {
        return font == ReportFont::Title ? 20 : 12;
    }
};

// A US Letter sheet in points.
PageFrame letterFrame(double margin = 36)
{
    return { QSizeF(612, 792), QMarginsF(margin, margin, margin, margin) };
}

std::vector<ReportPage> layoutOf(const SwaleProject &project, const PageFrame &frame,
                                 const QString &fileName = QStringLiteral("/data/roadside.swl"))
{
    return layoutReport(buildReportContent(project, fileName), frame, FixedMeasure());
}

QStringList textsOf(const ReportPage &page)
{
    QStringList texts;
    for (const PlacedText &text : page.texts)
        texts.append(text.text);
    return texts;
}

QString headingsOf(const ReportSection &section)
{
    QStringList headings;
    for (const ReportGroup &group : section.groups)
        headings.append(group.heading);
    return headings.join(QLatin1Char('|'));
}

} // namespace

class tst_ReportLayout : public QObject
{
    Q_OBJECT

private slots:
    void wrapText_data();
    void wrapText();
    void elideText_data();
    void elideText();
    void usableMargins_data();
    void usableMargins();

    void contentFollowsTheChosenMethods_data();
    void contentFollowsTheChosenMethods();
    void contentKeepsValuesAsTypedAndNamesItsSource();

    void everyTextStaysInsideTheMargins_data();
    void everyTextStaysInsideTheMargins();
    void longRatingCurveBreaksWithItsHeaderRepeated();
    void pageBreaksKeepHeadingsAndResultsWithTheirText();
};

// Widths in characters of the body font (6 units each in FixedMeasure).
void tst_ReportLayout::wrapText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("characters");
    QTest::addColumn<QString>("expected"); // lines joined by "|"

    QTest::newRow("breaks at blanks")
            << "Dense Bermuda grass sod" << 13 << "Dense Bermuda|grass sod";
    QTest::newRow("cuts a word longer than the line")
            << "ab abcdefghij xy" << 4 << "ab|abcd|efgh|ij|xy";
    QTest::newRow("narrower than a character still moves on") << "abc" << 0 << "a|b|c";
}

void tst_ReportLayout::wrapText()
{
    QFETCH(QString, text);
    QFETCH(int, characters);
    QFETCH(QString, expected);
    const double width = characters * FixedMeasure::characterWidth(ReportFont::Body);
    QCOMPARE(::wrapText(text, ReportFont::Body, width, FixedMeasure()).join(QLatin1Char('|')),
             expected);
}

void tst_ReportLayout::elideText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("width");
    QTest::addColumn<bool>("keepLeft");
    QTest::addColumn<QString>("expected");

    const QString ellipsis(QChar(0x2026));
    // 48 units: the ellipsis takes 6, seven characters of 6 fill the rest.
    QTest::newRow("cut on the right")
            << "County Road 12 swale" << 48.0 << true << QStringLiteral("County ") + ellipsis;
    QTest::newRow("cut on the left keeps the file name")
            << "/home/u/file.swl" << 48.0 << false << ellipsis + QStringLiteral("ile.swl");
    QTest::newRow("no room even for the ellipsis") << "abc" << 3.0 << true << "";
}

void tst_ReportLayout::elideText()
{
    QFETCH(QString, text);
    QFETCH(double, width);
    QFETCH(bool, keepLeft);
    QFETCH(QString, expected);
    QCOMPARE(::elideText(text, ReportFont::Body, width,
                         keepLeft ? ElideSide::Right : ElideSide::Left, FixedMeasure()),
             expected);
}

void tst_ReportLayout::usableMargins_data()
{
    QTest::addColumn<QMarginsF>("margins");
    QTest::addColumn<QMarginsF>("expected");

    QTest::newRow("negative counts as none")
            << QMarginsF(-5, 36, 36, -1) << QMarginsF(0, 36, 36, 0);
    // 612 pt wide: at most 408 pt of margins, shared in the ratio the file gave (1 : 3);
    // 792 pt high: at most 528 pt.
    QTest::newRow("too wide and too tall scaled together")
            << QMarginsF(200, 1000, 600, 1000) << QMarginsF(102, 264, 306, 264);
}

void tst_ReportLayout::usableMargins()
{
    QFETCH(QMarginsF, margins);
    QFETCH(QMarginsF, expected);
    QCOMPARE(::usableMargins({ QSizeF(612, 792), margins }), expected);
}

void tst_ReportLayout::contentFollowsTheChosenMethods_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    QTest::addColumn<QString>("inputGroups");
    QTest::addColumn<int>("resultCount");

    // Result boxes shown, the Results page's rule: methods 1 and 2 all 18 (runoff depth only with
    // the hydrograph), method 3 drops length and infiltration boxes 14, 15, 18, method 4 every
    // infiltration box.
    QTest::newRow("1 required length, hydrograph")
            << 1 << 1
            << "Solution Method|Channel Geometry|Efficiency|Channel Flow|Runoff Hydrograph|"
               "Flow Velocity|Aquifer"
            << 18;
    QTest::newRow("2 efficiency, given flow")
            << 2 << 2
            << "Solution Method|Channel Geometry|Channel Flow|Channel Flow Rate|Flow Velocity|"
               "Aquifer"
            << 17;
    QTest::newRow("3 inlet, hydrograph")
            << 3 << 1
            << "Solution Method|Channel Geometry|Channel Flow|Runoff Hydrograph|Flow Velocity|"
               "Inlet Rating Curve"
            << 14;
    QTest::newRow("4 without inlet, given flow")
            << 4 << 2
            << "Solution Method|Channel Geometry|Channel Flow|Channel Flow Rate|Flow Velocity"
            << 10;
}

void tst_ReportLayout::contentFollowsTheChosenMethods()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    QFETCH(QString, inputGroups);
    QFETCH(int, resultCount);

    const ReportContent content = buildReportContent(calculatedProject(method, flow), QString());
    QCOMPARE(content.sections.size(), size_t(3)); // inputs, results, hydraulic checks
    QCOMPARE(headingsOf(content.sections[0]), inputGroups);
    int results = 0;
    for (const ReportGroup &group : content.sections[1].groups)
        results += static_cast<int>(group.fields.size());
    QCOMPARE(results, resultCount);
    QCOMPARE(content.titleFields.back().value, QStringLiteral("<untitled>"));
}

void tst_ReportLayout::contentKeepsValuesAsTypedAndNamesItsSource()
{
    SwaleProject project = calculatedProject(1);
    project.inputText[5] = "  4.50 ";
    project.inputText[10] = "1,500";
    project.inputText[17] = "Sod over clay";
    const ReportContent content = buildReportContent(project, QStringLiteral("/p/a.swl"));
    const ReportField &width = content.sections[0].groups[1].fields[0];
    QCOMPARE(width.value, QStringLiteral("4.50"));
    QVERIFY(width.numeric);
    const ReportField &area = content.sections[0].groups[4].fields[0];
    QCOMPARE(area.value, QStringLiteral("1,500"));
    const ReportField &lining = content.sections[0].groups[5].fields[0];
    QCOMPARE(lining.value, QStringLiteral("Sod over clay"));
    QVERIFY(!lining.numeric);
    QCOMPARE(content.sections[0].groups[0].choice,
             QStringLiteral("Calculate required length of channel (with infiltration)"));
    QCOMPARE(content.jobName, QStringLiteral("Route 9 swale"));
    QCOMPARE(content.titleFields.back().value, QStringLiteral("/p/a.swl"));
    const ReportSource example = ReportSource::example(
            QStringLiteral("/x/Examples/Roadside swale - required length.swl"));
    QCOMPARE(buildReportContent(project, example).titleFields.back().value,
             QStringLiteral("Example: Roadside swale - required length"));
    const ReportContent uncalculated = buildReportContent(validProject(1), QString());
    QVERIFY(uncalculated.sections[1].groups.empty()); // no results: a note says so
    QVERIFY(!uncalculated.sections[1].note.isEmpty());
}

void tst_ReportLayout::everyTextStaysInsideTheMargins_data()
{
    QTest::addColumn<QSizeF>("paper");
    QTest::addColumn<QMarginsF>("margins");

    QTest::newRow("letter") << QSizeF(612, 792) << QMarginsF(108, 50, 20, 90);
    QTest::newRow("landscape") << QSizeF(792, 612) << QMarginsF(20, 144, 72, 36);
}

// A job name, a lining type and a file path far longer than a line wrap or shorten; nothing
// runs past a margin, and the first page reaches each: the title block starts at the left margin,
// the page header at the top one, the header's job name ends at the right one and the footer
// sits on the bottom one.
void tst_ReportLayout::everyTextStaysInsideTheMargins()
{
    QFETCH(QSizeF, paper);
    QFETCH(QMarginsF, margins);

    SwaleProject project = calculatedProject(3);
    setLongRatingCurve(project, 80);
    project.inputText[1] = std::string(30, 'J') + " " + std::string(200, 'x') + " end of job name";
    project.inputText[17]
            = "Turf reinforcement mat over compacted clay liner with a long description";
    const QString path = QStringLiteral("/very/long/folder/name/") + QString(150, QLatin1Char('p'))
            + QStringLiteral(".swl");
    const QRectF body = QRectF(QPointF(0, 0), paper).marginsRemoved(margins);
    const FixedMeasure measure;
    const std::vector<ReportPage> pages = layoutOf(project, { paper, margins }, path);
    QVERIFY(pages.size() >= 2);
    for (const ReportPage &page : pages) {
        for (const PlacedText &text : page.texts) {
            const QString where = text.text.left(40);
            QVERIFY2(body.adjusted(-kEpsilon, -kEpsilon, kEpsilon, kEpsilon).contains(text.rect),
                     qPrintable(where));
            QVERIFY2(measure.width(text.text, text.font) <= text.rect.width() + kEpsilon,
                     qPrintable(where));
        }
    }
    QRectF reach;
    for (const PlacedText &text : pages.front().texts)
        reach |= text.rect;
    QCOMPARE(reach, body);
    const QString wrappedJob = textsOf(pages.front()).join(QLatin1Char(' '));
    QVERIFY(wrappedJob.contains(QStringLiteral("end of job name")));
}

// Discharges "k.0625" are unique to row k + 1: every row appears once, in order, and every page
// that holds rows shows the column titles, continuation pages under "(continued)". Every page
// is numbered.
void tst_ReportLayout::longRatingCurveBreaksWithItsHeaderRepeated()
{
    SwaleProject project = calculatedProject(3);
    setLongRatingCurve(project, 150);
    const std::vector<ReportPage> pages = layoutOf(project, letterFrame());

    std::vector<int> discharges;
    int pagesWithRows = 0;
    for (size_t p = 0; p < pages.size(); ++p) {
        const QStringList texts = textsOf(pages[p]);
        QCOMPARE(texts.count(QStringLiteral("Page %1 of %2").arg(p + 1).arg(pages.size())), 1);
        const size_t before = discharges.size();
        for (const QString &text : texts) {
            if (text.endsWith(QStringLiteral(".0625")))
                discharges.push_back(text.chopped(5).toInt());
        }
        if (discharges.size() == before)
            continue;
        ++pagesWithRows;
        QVERIFY(texts.contains(QStringLiteral("Discharge Rate")));
        QVERIFY(texts.contains(QStringLiteral("(inches)")));
        QCOMPARE(texts.contains(QStringLiteral("Inlet Rating Curve (continued)")),
                 pagesWithRows > 1);
    }
    QVERIFY(pagesWithRows >= 3);
    QCOMPARE(discharges.size(), size_t(149));
    for (size_t i = 0; i < discharges.size(); ++i)
        QCOMPARE(discharges[i], static_cast<int>(i) + 1);
}

// Whatever room the inputs leave, the lowest text of a page's body is never a heading (headings
// move to the page they head), and the results, which fit on one page, start a new page rather
// than break across two.
void tst_ReportLayout::pageBreaksKeepHeadingsAndResultsWithTheirText()
{
    for (int method = 1; method <= 4; ++method) {
        for (double margin : { 36.0, 60.0, 90.0, 120.0, 170.0, 220.0 }) {
            const QString where = QStringLiteral("method %1, margin %2").arg(method).arg(margin);
            SwaleProject project = calculatedProject(method);
            setLongRatingCurve(project, 40);
            const ReportContent content = buildReportContent(project, QString());
            const std::vector<ReportPage> pages
                    = layoutReport(content, letterFrame(margin), FixedMeasure());
            std::set<size_t> resultPages;
            for (size_t p = 0; p < pages.size(); ++p) {
                const PlacedText *lowest = nullptr;
                for (const PlacedText &text : pages[p].texts) {
                    if (text.font != ReportFont::Furniture
                        && (!lowest || text.rect.top() > lowest->rect.top()))
                        lowest = &text;
                }
                QVERIFY2(p + 1 == pages.size()
                                 || (lowest && lowest->font != ReportFont::Group
                                     && lowest->font != ReportFont::Section),
                         qPrintable(where + QStringLiteral(", page %1").arg(p + 1)));
                const QStringList texts = textsOf(pages[p]);
                for (const ReportGroup &group : content.sections[1].groups) {
                    for (const ReportField &field : group.fields) {
                        if (texts.contains(field.caption))
                            resultPages.insert(p);
                    }
                }
                if (texts.contains(QStringLiteral("II.  RESULTS")))
                    resultPages.insert(p);
            }
            QVERIFY2(margin > 120 || resultPages.size() == 1, qPrintable(where));
        }
    }
}

int runReportLayoutTests(int argc, char **argv)
{
    tst_ReportLayout test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_ReportLayout.moc"
