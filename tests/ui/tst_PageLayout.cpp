#include "PageFixtures.h"
#include "PageLayout.h"
#include "tvrEditBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <algorithm>

namespace {

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

void addModeRows()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<int>("flow");
    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow)
            QTest::addRow("method %d, flow %d", method, flow) << method << flow;
    }
    QTest::newRow("nothing chosen") << 0 << 0;
}

} // namespace

class tst_PageLayout : public QObject
{
    Q_OBJECT

private slots:
    void inputPageShowsTheSectionsOfTheMode_data() { addModeRows(); }
    void inputPageShowsTheSectionsOfTheMode();
    void resultsPageShowsTheBoxesOfTheMode_data() { addModeRows(); }
    void resultsPageShowsTheBoxesOfTheMode();
    void captionsOfMethodFourAreLeftAsTheyWere();
    void gapsComeFromTheSizeOfX();
};

void tst_PageLayout::inputPageShowsTheSectionsOfTheMode()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    InputPageFixture page;
    const PageUnits units(page.panel->fontMetrics());
    // A previous mode must not leave anything behind: lay out the opposite mode first.
    PageLayout::LayoutInputPage(page.controls, 2, 2, units);
    const QSize size = PageLayout::LayoutInputPage(page.controls, method, flow, units);

    QCOMPARE(shownFromTheTop(page.panel), expectedInputOrder(method, flow));
    QCOMPARE(page.panel->size(), size);
    verifyNoOverlap(page.panel);
    verifyAlignedValues(page.panel, "txtInput");
    verifyBeside(page.controls.cmdToday, page.controls.txtInput[3]);
    verifyBeside(page.controls.cmdHelp[1], page.controls.txtInput[18]);
    verifyBeside(page.controls.cmdHelp[2], page.controls.txtInput[19]);
    QCOMPARE(page.controls.cmdHelp[1]->x(), page.controls.cmdHelp[2]->x());
    // The page ends 2 plus a margin below its last item.
    const QWidget *last = page.panel->findChild<QWidget *>(expectedInputOrder(method, flow).last());
    QCOMPARE(size.height(), last->geometry().bottom() + 1 + 2 + units.margin);
}

void tst_PageLayout::resultsPageShowsTheBoxesOfTheMode()
{
    QFETCH(int, method);
    QFETCH(int, flow);
    ResultsPageFixture page;
    const PageUnits units(page.panel->fontMetrics());
    PageLayout::LayoutResultsPage(page.controls, 4, 2, units);
    PageLayout::LayoutResultsPage(page.controls, method, flow, units);

    QCOMPARE(shownFromTheTop(page.panel), expectedResultsOrder(method, flow));
    verifyNoOverlap(page.panel);
    verifyAlignedValues(page.panel, "txtOutput");
}

void tst_PageLayout::captionsOfMethodFourAreLeftAsTheyWere()
{
    ResultsPageFixture page;
    const PageUnits units(page.panel->fontMetrics());
    PageLayout::LayoutResultsPage(page.controls, 3, 1, units);
    PageLayout::LayoutResultsPage(page.controls, 4, 1, units);
    QCOMPARE(page.controls.lblOutput[5]->text(), QStringLiteral("Infiltration Calculations"));
    QCOMPARE(page.controls.txtOutput[2]->leftcaption(),
             QStringLiteral("Treatment efficiency, [e]"));
    QCOMPARE(page.controls.txtOutput[16]->leftcaption(),
             QStringLiteral("Potential dicharge rate at normal depth, [Qip]"));
}

void tst_PageLayout::gapsComeFromTheSizeOfX()
{
    InputPageFixture page;
    QFont big = page.panel->font();
    big.setPointSizeF(big.pointSizeF() * 2);
    const PageUnits small(page.panel->fontMetrics());
    const PageUnits large { QFontMetrics(big) };
    QVERIFY(large.xHeight > small.xHeight);

    PageLayout::LayoutInputPage(page.controls, 1, 1, small);
    const InputPageControls &c = page.controls;
    QCOMPARE(c.txtInput[6]->y() - c.txtInput[5]->geometry().bottom() - 1, small.boxGap);
    QCOMPARE(c.lblInput[2]->y() - c.grpSolutionMethod->geometry().bottom() - 1, small.headingGap);
    QCOMPARE(c.txtInput[5]->y() - c.lblInput[2]->geometry().bottom() - 1, small.underHeading);
}

QTEST_MAIN(tst_PageLayout)
#include "tst_PageLayout.moc"
