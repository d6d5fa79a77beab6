#include "RdcGridA.h"
#include "ScrollingPage.h"
#include "WindowFixture.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpontaneKeyEvent>
#include <QTest>
#include <QWheelEvent>

namespace {

const QString kExample = QStringLiteral("Roadside swale - required length.swl");

// Turns the wheel (or strokes the touchpad) over the middle of `target` as the platform does:
// a spontaneous event, which travels up from the widget under the pointer until one takes it.
void wheelOver(QWidget *target, QPoint pixelDelta, QPoint angleDelta)
{
    const QPointF local = QRectF(target->rect()).center();
    QWheelEvent wheel(local, target->mapToGlobal(local), pixelDelta, angleDelta, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    QApplication::instance()->notify(target, &wheel);
}

} // namespace

class tst_PageScrolling : public QObject
{
    Q_OBJECT

private slots:
    void documentCommandsLeaveThePagesAtTheTop_data();
    void documentCommandsLeaveThePagesAtTheTop();
    void wheelAndTouchpadScrollThePage_data();
    void wheelAndTouchpadScrollThePage();
};

void tst_PageScrolling::documentCommandsLeaveThePagesAtTheTop_data()
{
    QTest::addColumn<QString>("command");
    QTest::newRow("New") << QStringLiteral("New");
    QTest::newRow("Open") << QStringLiteral("Open");
    QTest::newRow("Example") << QStringLiteral("Example");
    QTest::newRow("Recent") << QStringLiteral("Recent");
}

// The unsaved-data question takes the focus from the window; when it closes, the window is
// activated again and hands the focus back to the box that had it, far down the page.
void tst_PageScrolling::documentCommandsLeaveThePagesAtTheTop()
{
    QFETCH(QString, command);
    WindowFixture fx;
    fx.setUp();
    const QString example = fx.programFile(QStringLiteral("Examples/") + kExample);
    const QString project = fx.documentsFile(QStringLiteral("project.swl"));
    QVERIFY(QFile::copy(QStringLiteral(SWALE_EXAMPLES_DIR "/") + kExample, example));
    QVERIFY(QFile::copy(example, project));
    frmMain &window = *fx.window;
    RecordingPrompts &prompts = fx.prompts;
    window.resize(900, 700);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QVERIFY(window.OpenDataFile(project, OpenNormal)); // also the recent file
    QLineEdit *low = window.txtInput(23)->editor();
    low->setFocus(Qt::TabFocusReason);
    QVERIFY(window.page(0)->vscScrollWindow()->value() > 0);
    QTest::keyClicks(low, QStringLiteral("5"));

    prompts.answerMessage(MessageAnswer::No);
    if (command == QLatin1String("New")) {
        window.menus().mnuFile_New->trigger();
    } else if (command == QLatin1String("Recent")) {
        window.menus().mnuFile_Recent[1]->trigger();
    } else {
        prompts.answerOpen(command == QLatin1String("Open") ? project : example);
        (command == QLatin1String("Open") ? window.menus().mnuFile_Open
                                          : window.menus().cmdFile_Example)
                ->trigger();
    }
    QCOMPARE(prompts.pendingAnswers(), 0);
    QApplication::setActiveWindow(nullptr);
    QApplication::setActiveWindow(&window);
    QTRY_COMPARE(QApplication::focusWidget(), low);
    QCOMPARE(window.page(0)->vscScrollWindow()->value(), 0);
    QCOMPARE(window.page(1)->vscScrollWindow()->value(), 0);
}

void tst_PageScrolling::wheelAndTouchpadScrollThePage_data()
{
    QTest::addColumn<QString>("over");
    QTest::addColumn<QPoint>("pixelDelta");
    QTest::addColumn<QPoint>("angleDelta");
    QTest::addColumn<int>("pageValue"); // -1: the desktop's lines of the bar's small step
    QTest::addColumn<int>("gridFirstRow");
    QTest::newRow("wheel over a box") << "box" << QPoint() << QPoint(0, -120) << -1 << 1;
    QTest::newRow("touchpad over a label") << "label" << QPoint(0, -37) << QPoint() << 37 << 1;
    QTest::newRow("touchpad tells pixels and angle: pixels count")
            << "panel" << QPoint(0, -37) << QPoint(0, -120) << 37 << 1;
    QTest::newRow("wheel over the grid scrolls the grid")
            << "grid" << QPoint() << QPoint(0, -120) << 0 << 4;
}

void tst_PageScrolling::wheelAndTouchpadScrollThePage()
{
    QFETCH(QString, over);
    QFETCH(QPoint, pixelDelta);
    QFETCH(QPoint, angleDelta);
    QFETCH(int, pageValue);
    auto *content = new QWidget;
    content->resize(280, 1200);
    auto *box = new tvrEditBox(content);
    box->setGeometry(10, 10, 250, 30);
    auto *label = new QLabel(QStringLiteral("Channel Geometry"), content);
    label->setGeometry(10, 50, 250, 30);
    auto *grid = new RdcGridA(content);
    grid->setGeometry(10, 90, 250, 150);
    grid->Refresh();
    ScrollingPage page(content, ScrollingPage::Behaviour::KeepsItsPlace);
    page.resize(300, 300);
    page.ArrangeScrollBars();
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page));
    QWidget *surface = grid->findChild<QWidget *>(QStringLiteral("pic"));
    QWidget *target = over == QLatin1String("box") ? box->editor()
            : over == QLatin1String("label")       ? label
            : over == QLatin1String("grid")        ? surface
                                                   : content;

    wheelOver(target, pixelDelta, angleDelta);
    QScrollBar *bar = page.vscScrollWindow();
    if (pageValue < 0)
        pageValue = QApplication::wheelScrollLines() * bar->singleStep();
    QCOMPARE(bar->value(), pageValue);
    QCOMPARE(content->y(), -pageValue);
    QTEST(grid->firstVisibleRow(), "gridFirstRow");
}

QTEST_MAIN(tst_PageScrolling)
#include "tst_PageScrolling.moc"
