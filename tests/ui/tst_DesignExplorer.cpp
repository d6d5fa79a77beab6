// The Design Explorer inside the window: a value it puts into an input box changes the document
// as typing does, a sweep runs off the window's thread and exports its table, and a range it
// cannot sweep is refused with a message.
#include "DesignExplorer.h"
#include "Sweep.h"
#include "WindowFixture.h"
#include "tvrEditBox.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

class tst_DesignExplorer : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void solvedValueIsTypedIntoItsBox();
    void sweepRunsAndExportsItsTable();
    void refusesARangeItCannotSweep_data();
    void refusesARangeItCannotSweep();

private:
    void setAxis(const QString &symbol, const QString &from, const QString &to, int points);
    DesignExplorer &explorer() { return *m_fx.window->designExplorer(); }

    WindowFixture m_fx;
};

void tst_DesignExplorer::init()
{
    m_fx.setUp();
    QVERIFY(m_fx.window->OpenDataFile(
            QStringLiteral(SWALE_EXAMPLES_DIR "/Roadside swale - required length.swl"),
            OpenExample));
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.window->resultsShown());
    m_fx.window->showDesignExplorer();
    QVERIFY(m_fx.window->designExplorer());
}

void tst_DesignExplorer::cleanup()
{
    m_fx.tearDown();
}

void tst_DesignExplorer::setAxis(const QString &symbol, const QString &from, const QString &to,
                                 int points)
{
    auto *input = explorer().findChild<QComboBox *>(QStringLiteral("input1"));
    const int index = input->findText(QStringLiteral("[%1]").arg(symbol), Qt::MatchEndsWith);
    QVERIFY(index >= 0);
    input->setCurrentIndex(index);
    explorer().findChild<QLineEdit *>(QStringLiteral("from1"))->setText(from);
    explorer().findChild<QLineEdit *>(QStringLiteral("to1"))->setText(to);
    explorer().findChild<QSpinBox *>(QStringLiteral("points1"))->setValue(points);
}

void tst_DesignExplorer::solvedValueIsTypedIntoItsBox()
{
    setAxis(QStringLiteral("B"), QStringLiteral("1"), QStringLiteral("12"), 50);
    auto *result = explorer().findChild<QComboBox *>(QStringLiteral("solveResult"));
    result->setCurrentIndex(result->findText(QStringLiteral("[L]"), Qt::MatchEndsWith));
    explorer().findChild<QLineEdit *>(QStringLiteral("target"))->setText(QStringLiteral("1200"));
    explorer().solve();
    QVERIFY(explorer().canPutSolvedValue());
    QVERIFY(m_fx.window->resultsShown());

    explorer().putSolvedValue();
    QVERIFY(!m_fx.window->resultsShown()); // the edit made the results stale
    m_fx.window->calculateButton()->click();
    QVERIFY(m_fx.window->resultsShown());
    const double length = resultNumber(m_fx.window->txtOutput(1)->text().toStdString());
    QVERIFY2(qAbs(length - 1200) < 1200 * 1e-5, qPrintable(m_fx.window->txtOutput(1)->text()));
}

void tst_DesignExplorer::sweepRunsAndExportsItsTable()
{
    setAxis(QStringLiteral("B"), QStringLiteral("-1"), QStringLiteral("5"), 4);
    QSignalSpy finished(&explorer(), &DesignExplorer::sweepFinished);
    QVERIFY(explorer().startSweep());
    QVERIFY(finished.wait(60000));
    QVERIFY(explorer().sweep()->complete);

    const QString path = m_fx.folder->filePath(QStringLiteral("sweep"));
    m_fx.prompts.answerSave(path);
    QVERIFY(explorer().exportCsv());
    QFile file(path + QStringLiteral(".csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 6); // header, four points, the empty rest after the last line end
    QVERIFY(lines[0].startsWith("\"Bottom width of channel, [B] (ft)\",status,"));
    QVERIFY(lines[1].startsWith("-1,invalid,"));
    QVERIFY(lines[1].endsWith(",Bottom width must be greater than or equal to zero."));
    QVERIFY(lines[2].startsWith("1,ok,"));
}

void tst_DesignExplorer::refusesARangeItCannotSweep_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<QString>("message");
    QTest::newRow("not a number")
            << "wide"
            << "5"
            << "The range of Bottom width of channel, [B] must be two numbers.";
    QTest::newRow("empty range") << "5"
                                 << "5"
                                 << "The range of B must have two different ends.";
}

void tst_DesignExplorer::refusesARangeItCannotSweep()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    QFETCH(QString, message);
    setAxis(QStringLiteral("B"), from, to, 10);
    m_fx.prompts.answerMessage();
    QVERIFY(!explorer().startSweep());
    QCOMPARE(m_fx.prompts.messages(), QStringList { message });
}

QTEST_MAIN(tst_DesignExplorer)
#include "tst_DesignExplorer.moc"
