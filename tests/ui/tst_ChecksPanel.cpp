#include "ChecksPanel.h"
#include "WindowFixture.h"
#include "tvrEditBox.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

// The checks panel alone (how it marks a failing value) and in the window (when it shows,
// greys and clears the checks).
class tst_ChecksPanel : public QObject
{
    Q_OBJECT

private slots:
    void failingValueIsMarkedInColourAndWords_data();
    void failingValueIsMarkedInColourAndWords();
    void followsTheCalculationsOfTheWindow();
};

void tst_ChecksPanel::failingValueIsMarkedInColourAndWords_data()
{
    QTest::addColumn<double>("velocityRatio");
    QTest::addColumn<double>("froude");
    QTest::addColumn<QStringList>("failing"); // checks marked as failing

    QTest::newRow("all within their limits") << 0.5 << 0.5 << QStringList();
    QTest::newRow("faster than the permissible velocity")
            << 1.4 << 0.5 << QStringList { QStringLiteral("Velocity ratio, [V/Vp]") };
    QTest::newRow("supercritical and eroding")
            << 2.0 << 1.5
            << QStringList { QStringLiteral("Flow regime"),
                             QStringLiteral("Velocity ratio, [V/Vp]") };
}

// A failing check's row is coloured, and the verdict under it says "Fails" in words; a passing
// check's row keeps the table's colours and its verdict does not say so.
void tst_ChecksPanel::failingValueIsMarkedInColourAndWords()
{
    QFETCH(double, velocityRatio);
    QFETCH(double, froude);
    QFETCH(QStringList, failing);

    HydraulicChecks checks;
    checks.criticalDepth = 0.5;
    checks.froude = froude;
    checks.regime = regimeOf(froude);
    checks.velocityRatio = velocityRatio;
    ChecksPanel panel;
    panel.showChecks(checks);

    const QTableWidget *table = panel.table();
    QStringList coloured;
    QStringList failedInWords;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *item = table->item(row, ChecksPanel::QuantityColumn);
        const bool isVerdict = table->columnSpan(row, ChecksPanel::QuantityColumn) > 1;
        if (!isVerdict && item->background().style() != Qt::NoBrush)
            coloured << item->text();
        if (isVerdict && item->text().contains(QStringLiteral("Fails:")))
            failedInWords << table->item(row - 1, ChecksPanel::QuantityColumn)->text();
    }
    QCOMPARE(coloured, failing);
    QCOMPARE(failedInWords, failing);
}

// Calculate shows the checks; an edit greys them as stale; a failed Calculate shows its reason;
// New clears the pane.
void tst_ChecksPanel::followsTheCalculationsOfTheWindow()
{
    WindowFixture fx;
    fx.setUp();
    frmMain &window = *fx.window;
    ChecksPanel *panel = window.checksPanel();
    QCOMPARE(panel->table()->rowCount(), 0);

    const QString path = QFINDTESTDATA("../../examples/Median ditch - inlet interception.swl");
    QVERIFY(window.OpenDataFile(path, OpenExample));
    QTest::mouseClick(window.calculateButton(), Qt::LeftButton);
    QVERIFY(window.resultsShown());
    QVERIFY(panel->table()->rowCount() > 0);
    QVERIFY(!panel->isStale());
    QVERIFY(panel->table()->isEnabled());

    QTest::keyClicks(window.txtInput(8)->editor(), QStringLiteral("5")); // the channel slope
    QVERIFY(panel->isStale());
    QVERIFY(!panel->table()->isEnabled());
    QVERIFY(panel->status()->text().startsWith(QStringLiteral("Stale")));

    window.txtInput(8)->setText(QStringLiteral("-1"));
    fx.prompts.answerMessage();
    QTest::mouseClick(window.calculateButton(), Qt::LeftButton);
    QCOMPARE(panel->table()->rowCount(), 0);
    QCOMPARE(panel->status()->text(),
             QStringLiteral("No checks: Slope of channel must be greater than zero."));

    fx.prompts.answerMessage(MessageAnswer::No); // the unsaved-data question
    window.newCommand();
    QCOMPARE(panel->table()->rowCount(), 0);
    QVERIFY(!panel->status()->text().startsWith(QStringLiteral("No checks")));
    fx.tearDown();
}

QTEST_MAIN(tst_ChecksPanel)
#include "tst_ChecksPanel.moc"
