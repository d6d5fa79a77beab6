// The layout of the window's two pages for every mode, without the main window.
#include "InputPage.h"
#include "PageLayout.h"
#include "ResultsPage.h"
#include "tvrEditBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace {

// Object names `name`_first to `name`_last.
QStringList boxes(const char *name, int first, int last)
{
    QStringList names;
    for (int i = first; i <= last; ++i)
        names << QLatin1String(name) + QLatin1Char('_') + QString::number(i);
    return names;
}

QList<QWidget *> shownChildren(const QWidget *panel)
{
    QList<QWidget *> shown;
    for (QWidget *child : panel->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!child->isHidden() && !qobject_cast<QPushButton *>(child))
            shown.append(child);
    }
    std::stable_sort(shown.begin(), shown.end(),
                     [](QWidget *a, QWidget *b) { return a->y() < b->y(); });
    return shown;
}

QStringList shownFromTheTop(const QWidget *panel)
{
    QStringList names;
    for (QWidget *child : shownChildren(panel))
        names << child->objectName();
    return names;
}

QStringList expectedInputOrder(int method, int flow)
{
    QStringList names = boxes("txtInput", 1, 3);
    names << QStringLiteral("lblInput_1") << QStringLiteral("grpSolutionMethod")
          << QStringLiteral("lblInput_2");
    if (method == 2)
        names << QStringLiteral("txtInput_4");
    names << boxes("txtInput", 5, 8);
    if (method == 1)
        names << QStringLiteral("lblInput_3") << QStringLiteral("txtInput_9");
    names << QStringLiteral("lblInput_4") << QStringLiteral("grpChannelFlow");
    if (flow == 1)
        names << QStringLiteral("lblInput_5") << boxes("txtInput", 10, 14);
    if (flow == 2)
        names << QStringLiteral("lblInput_6") << boxes("txtInput", 15, 16);
    names << QStringLiteral("lblInput_7") << boxes("txtInput", 17, 19);
    if (method == 1 || method == 2)
        names << QStringLiteral("lblInput_8") << boxes("txtInput", 20, 23);
    if (method == 3 || method == 4)
        names << QStringLiteral("lblInput_9") << QStringLiteral("grdRatingCurve");
    return names;
}

QStringList expectedResultsOrder(int method, int flow)
{
    const bool infiltration = method == 1 || method == 2;
    QStringList names { QStringLiteral("lblOutput_1") };
    if (infiltration)
        names << QStringLiteral("txtOutput_1");
    if (infiltration || method == 3)
        names << QStringLiteral("txtOutput_2");
    names << QStringLiteral("txtOutput_3") << QStringLiteral("lblOutput_2")
          << boxes("txtOutput", 4, 5);
    if (flow == 1)
        names << QStringLiteral("txtOutput_6");
    names << QStringLiteral("lblOutput_3") << boxes("txtOutput", 7, 12)
          << QStringLiteral("lblOutput_4") << QStringLiteral("txtOutput_13");
    if (infiltration || method == 3) {
        names << QStringLiteral("lblOutput_5");
        if (infiltration)
            names << boxes("txtOutput", 14, 15);
        names << boxes("txtOutput", 16, 17);
        if (infiltration)
            names << QStringLiteral("txtOutput_18");
    }
    return names;
}

// Every shown child lies below the one above it, and inside the content panel.
void verifyNoOverlap(const QWidget *panel)
{
    const QList<QWidget *> shown = shownChildren(panel);
    for (int i = 1; i < shown.size(); ++i) {
        QVERIFY2(shown[i]->y() > shown[i - 1]->geometry().bottom(),
                 qPrintable(shown[i]->objectName() + " overlaps " + shown[i - 1]->objectName()));
    }
    for (QWidget *child : shown)
        QVERIFY2(panel->rect().contains(child->geometry()), qPrintable(child->objectName()));
}

// The value fields of the shown boxes start at one x.
void verifyAlignedValues(const QWidget *panel, const char *name)
{
    QSet<int> starts;
    for (tvrEditBox *box : panel->findChildren<tvrEditBox *>()) {
        if (!box->isHidden() && box->objectName().startsWith(QLatin1String(name)))
            starts.insert(box->editor()->mapTo(panel, QPoint(0, 0)).x());
    }
    QCOMPARE(starts.size(), 1);
}

// `button` stands right of `box`'s value field (and of its unit, when it has one), on the
// same row.
void verifyBeside(const QPushButton *button, const tvrEditBox *box)
{
    QCOMPARE(button->y(), box->y());
    QCOMPARE(button->height(), box->height());
    const QWidget *panel = box->parentWidget();
    int right = box->editor()->mapTo(panel, QPoint(box->editor()->width(), 0)).x();
    if (!box->rightcaption().isEmpty())
        right = box->geometry().right();
    QVERIFY(button->x() > right);
    QVERIFY(!button->isHidden());
}

} // namespace

class tst_PageLayout : public QObject
{
    Q_OBJECT

private slots:
    void pagesShowTheSectionsOfTheMode_data();
    void pagesShowTheSectionsOfTheMode();
    void captionsOfMethodFourAreLeftAsTheyWere();
    void gapsComeFromTheSizeOfX();
};

void tst_PageLayout::pagesShowTheSectionsOfTheMode_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow)
            QTest::addRow("method %d, flow %d", method, flow) << method << flow;
    }
    QTest::newRow("nothing chosen") << 0 << 0;
}

void tst_PageLayout::pagesShowTheSectionsOfTheMode()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    InputPage input;
    const InputPageControls c = input.controls();
    const PageUnits units(input.fontMetrics());
    // A previous mode must not leave anything behind: lay out another mode first.
    PageLayout::LayoutInputPage(c, 2, 2, units);
    const QSize size = PageLayout::LayoutInputPage(c, method, flow, units);
    QCOMPARE(shownFromTheTop(&input), expectedInputOrder(method, flow));
    QCOMPARE(input.size(), size);
    verifyNoOverlap(&input);
    verifyAlignedValues(&input, "txtInput");
    verifyBeside(c.cmdToday, c.txtInput[3]);
    verifyBeside(c.cmdHelp[1], c.txtInput[18]);
    verifyBeside(c.cmdHelp[2], c.txtInput[19]);
    QCOMPARE(c.cmdHelp[1]->x(), c.cmdHelp[2]->x());
    // The page ends 2 plus a margin below its last item.
    const QWidget *last = input.findChild<QWidget *>(expectedInputOrder(method, flow).last());
    QCOMPARE(size.height(), last->geometry().bottom() + 1 + 2 + units.margin);

    ResultsPage results;
    PageLayout::LayoutResultsPage(results.controls(), 4, 2, units);
    PageLayout::LayoutResultsPage(results.controls(), method, flow, units);
    QCOMPARE(shownFromTheTop(&results), expectedResultsOrder(method, flow));
    verifyNoOverlap(&results);
    verifyAlignedValues(&results, "txtOutput");
}

void tst_PageLayout::captionsOfMethodFourAreLeftAsTheyWere()
{
    ResultsPage page;
    const ResultsPageControls c = page.controls();
    const PageUnits units(page.fontMetrics());
    PageLayout::LayoutResultsPage(c, 3, 1, units);
    PageLayout::LayoutResultsPage(c, 4, 1, units);
    QCOMPARE(c.lblOutput[5]->text(), QStringLiteral("Infiltration Calculations"));
    QCOMPARE(c.txtOutput[2]->leftcaption(), QStringLiteral("Treatment efficiency, [e]"));
    QCOMPARE(c.txtOutput[16]->leftcaption(),
             QStringLiteral("Potential dicharge rate at normal depth, [Qip]"));
}

void tst_PageLayout::gapsComeFromTheSizeOfX()
{
    InputPage page;
    const InputPageControls c = page.controls();
    const PageUnits small(page.fontMetrics());
    PageLayout::LayoutInputPage(c, 1, 1, small);
    QCOMPARE(c.txtInput[6]->y() - c.txtInput[5]->geometry().bottom() - 1, small.boxGap);
    QCOMPARE(c.lblInput[2]->y() - c.grpSolutionMethod->geometry().bottom() - 1, small.headingGap);
    QCOMPARE(c.txtInput[5]->y() - c.lblInput[2]->geometry().bottom() - 1, small.underHeading);
}

QTEST_MAIN(tst_PageLayout)
#include "tst_PageLayout.moc"
