#include "InputPage.h"
#include "WindowFixture.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QStatusBar>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

// The keyboard's Calculate and the "read as" warnings, on the whole window.
class tst_EverydayUse : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void f9CalculatesFromAnywhere_data();
    void f9CalculatesFromAnywhere();
    void partReadNumbersAreFlagged_data();
    void partReadNumbersAreFlagged();
    void tabWalksTheInputPageInReadingOrder();
    void exportOfAnExampleIsNamedAfterIt();

private:
    void openExample();

    WindowFixture m_fx;
};

namespace {
const QString kExample = QStringLiteral("Roadside swale - required length.swl");

// The page's own control that holds `focus`: an input box, a button, an option, the grid.
QString controlName(QWidget *focus, const QWidget *page)
{
    for (QWidget *w = focus; w && w != page; w = w->parentWidget()) {
        const QWidget *parent = w->parentWidget();
        if (parent == page || parent->objectName().startsWith(QLatin1String("grp")))
            return w->objectName();
    }
    return {};
}
} // namespace

void tst_EverydayUse::init()
{
    m_fx.setUp();
    m_fx.window->show();
    m_fx.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_fx.window.get()));
}

void tst_EverydayUse::cleanup()
{
    m_fx.tearDown();
}

void tst_EverydayUse::openExample()
{
    const QString source = QStringLiteral(SWALE_EXAMPLES_DIR "/") + kExample;
    QVERIFY(m_fx.window->OpenDataFile(source, OpenExample));
}

void tst_EverydayUse::f9CalculatesFromAnywhere_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("focus");
    QTest::newRow("in an input box") << 0 << "txtInput_5";
    QTest::newRow("on the Today button") << 0 << "cmdToday";
    QTest::newRow("on the Results page") << 1 << "txtOutput_3";
}

void tst_EverydayUse::f9CalculatesFromAnywhere()
{
    QFETCH(int, tab);
    QFETCH(QString, focus);
    openExample();
    m_fx.window->tabs()->setCurrentIndex(tab);
    auto *target = m_fx.window->findChild<QWidget *>(focus);
    QVERIFY(target);
    target->setFocus();
    QVERIFY(!m_fx.window->resultsShown());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F9);
    QVERIFY(m_fx.window->resultsShown());
    QCOMPARE(m_fx.window->tabs()->currentIndex(), 1);
    QVERIFY(m_fx.window->calculateButton()->toolTip().contains(QStringLiteral("F9")));
}

// The boxes read only the leading number of a text they accept; the warning says what is read
// and the text stays as typed.
void tst_EverydayUse::partReadNumbersAreFlagged_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("note"); // "" for no warning
    QTest::newRow("thousands separator") << 5 << "1,500"
                                         << "read as 1";
    QTest::newRow("currency sign") << 19 << "$0.035"
                                   << "read as 0";
    QTest::newRow("plain number") << 5 << "1500"
                                  << "";
    QTest::newRow("not a number (validation's message instead)") << 5 << "abc"
                                                                 << "";
}

void tst_EverydayUse::partReadNumbersAreFlagged()
{
    QFETCH(int, box);
    QFETCH(QString, typed);
    QFETCH(QString, note);
    tvrEditBox *input = m_fx.window->txtInput(box);
    input->editor()->clear();
    QTest::keyClicks(input->editor(), typed);
    QCOMPARE(input->text(), typed);
    auto *label = m_fx.window->findChild<QLabel *>(QStringLiteral("readingNote_%1").arg(box));
    QVERIFY(label);
    QCOMPARE(label->isVisibleTo(m_fx.window.get()), !note.isEmpty());
    if (!note.isEmpty())
        QCOMPARE(label->text(), note);
}

// From the job name, Tab visits the page's controls from the top down and, on one line, from
// left to right, and reaches every kind of control a reader meets.
void tst_EverydayUse::tabWalksTheInputPageInReadingOrder()
{
    QWidget *page = m_fx.window->inputPage();
    m_fx.window->txtInput(1)->setFocus(Qt::TabFocusReason);
    QPoint previous(-1, -1);
    QStringList visited;
    for (int step = 0; step < 60; ++step) {
        QWidget *focus = QApplication::focusWidget();
        QVERIFY(focus);
        if (!page->isAncestorOf(focus))
            break;
        const QPoint at = focus->mapTo(page, QPoint(0, 0));
        QVERIFY2(at.y() > previous.y() || (at.y() == previous.y() && at.x() > previous.x()),
                 qPrintable(visited.join(QLatin1Char(' ')) + QStringLiteral(" -> ")
                            + controlName(focus, page)));
        visited << controlName(focus, page);
        previous = at;
        QTest::keyClick(focus, Qt::Key_Tab);
    }
    for (const char *expected : { "txtInput_3", "cmdToday", "optCalculate_1", "txtInput_8",
                                  "optChannelFlow_1", "cmdHelp_1", "cmdHelp_2", "txtInput_23" })
        QVERIFY2(visited.contains(QLatin1String(expected)),
                 qPrintable(visited.join(QLatin1Char(' '))));
}

// An example opens untitled: its report is suggested under the example's name in the data
// folder, and the status bar says where the report went.
void tst_EverydayUse::exportOfAnExampleIsNamedAfterIt()
{
    openExample();
    QTest::keyClick(m_fx.window.get(), Qt::Key_F9);
    const QString documents = QString::fromStdString(m_fx.folders.documentsFolder);
    const QString pdf = documents + QStringLiteral("Roadside swale - required length.pdf");
    m_fx.prompts.answerSave(pdf);
    m_fx.window->menus().mnuFile_ExportPdf->trigger();
    const FileDialogRequest &request = m_fx.prompts.records().constLast().request;
    QCOMPARE(request.initialFolder, documents);
    QCOMPARE(request.fileName, QStringLiteral("Roadside swale - required length.pdf"));
    QVERIFY(QFile::exists(pdf));
    QCOMPARE(m_fx.window->statusBar()->currentMessage(),
             QStringLiteral("Report written to ") + pdf);
}

QTEST_MAIN(tst_EverydayUse)
#include "tst_EverydayUse.moc"
