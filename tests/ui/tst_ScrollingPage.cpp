// The scrolling pages: their bars, what they keep in view, the wheel and the touchpad.
#include "RdcGridA.h"
#include "ScrollingPage.h"
#include "tvrEditBox.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSpontaneKeyEvent>
#include <QTest>
#include <QWheelEvent>

namespace {

constexpr auto kInputPage = ScrollingPage::Behaviour::KeepsItsPlace;
constexpr auto kResultsPage = ScrollingPage::Behaviour::OpensAtTop;

int barWidth()
{
    return QScrollBar(Qt::Vertical).sizeHint().width();
}

int barHeight()
{
    return QScrollBar(Qt::Horizontal).sizeHint().height();
}

// A page of `pageSize` showing a content panel of `contentSize`.
struct PageUnderTest
{
    PageUnderTest(ScrollingPage::Behaviour page, QSize pageSize, QSize contentSize)
        : content(new QWidget)
        , viewport(content, page)
    {
        content->resize(contentSize);
        viewport.resize(pageSize);
        viewport.ArrangeScrollBars();
    }
    QWidget *content;
    ScrollingPage viewport;
};

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

class tst_ScrollingPage : public QObject
{
    Q_OBJECT

private slots:
    void arrangeScrollBars_data();
    void arrangeScrollBars();
    void resultsPageOpensAtItsTopWhileInputPageKeepsItsPlace();
    void barsMoveThePanelAndHidingThemPutsItBack();
    void resizeArrangesUnlessSuspended();
    void makeVisible_data();
    void makeVisible();
    void wheelAndTouchpadScrollThePage_data();
    void wheelAndTouchpadScrollThePage();
    void aPageDestroyedWhileFocusMovesBreaksNothing();
};

void tst_ScrollingPage::arrangeScrollBars_data()
{
    QTest::addColumn<QSize>("content");
    QTest::addColumn<bool>("vertical");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<int>("verticalMaximum");
    QTest::addColumn<int>("horizontalMaximum");
    // The viewport is 300 x 300 in every row; b and h are the bars' widths.
    const int b = barWidth();
    const int h = barHeight();
    QTest::newRow("exactly the viewport: no bars") << QSize(300, 300) << false << false << 0 << 0;
    QTest::newRow("taller only") << QSize(200, 700) << true << false << 400 << 0;
    QTest::newRow("larger both ways") << QSize(700, 700) << true << true << 400 + h << 400 + b;
    QTest::newRow("vertical bar forces the horizontal one")
            << QSize(300 - b / 2, 500) << true << true << 200 + h << b - b / 2;
    QTest::newRow("horizontal bar forces the vertical one")
            << QSize(500, 300 - h / 2) << true << true << h - h / 2 << 200 + b;
    QTest::newRow("taller, but as narrow as the view less the bar")
            << QSize(300 - b, 500) << true << false << 200 << 0;
}

void tst_ScrollingPage::arrangeScrollBars()
{
    QFETCH(QSize, content);
    QFETCH(bool, vertical);
    QFETCH(bool, horizontal);
    PageUnderTest page(kInputPage, QSize(300, 300), content);
    ScrollingPage &p = page.viewport;
    const int W = 300 - (vertical ? barWidth() : 0);
    const int H = 300 - (horizontal ? barHeight() : 0);

    QCOMPARE(p.vscScrollWindow()->isVisibleTo(&p), vertical);
    QCOMPARE(p.hscScrollWindow()->isVisibleTo(&p), horizontal);
    QCOMPARE(p.picScrollButton()->isVisibleTo(&p), vertical && horizontal);
    QCOMPARE(page.content->pos(), QPoint(0, 0));
    if (vertical) {
        QTEST(p.vscScrollWindow()->maximum(), "verticalMaximum");
        QCOMPARE(p.vscScrollWindow()->minimum(), 0);
        QCOMPARE(p.vscScrollWindow()->geometry(), QRect(W, 0, barWidth(), H));
    }
    if (horizontal) {
        QTEST(p.hscScrollWindow()->maximum(), "horizontalMaximum");
        QCOMPARE(p.hscScrollWindow()->geometry(), QRect(0, H, W, barHeight()));
    }
    if (vertical && horizontal)
        QCOMPARE(p.picScrollButton()->geometry(), QRect(W, H, barWidth(), barHeight()));
    QCOMPARE(p.visibleHeight(), H);
}

void tst_ScrollingPage::resultsPageOpensAtItsTopWhileInputPageKeepsItsPlace()
{
    PageUnderTest input(kInputPage, QSize(300, 300), QSize(200, 900));
    PageUnderTest results(kResultsPage, QSize(300, 300), QSize(200, 900));
    input.viewport.vscScrollWindow()->setValue(250);
    results.viewport.vscScrollWindow()->setValue(250);
    input.viewport.ArrangeScrollBars();
    results.viewport.ArrangeScrollBars();
    QCOMPARE(input.viewport.vscScrollWindow()->value(), 250);
    QCOMPARE(input.content->y(), -250);
    QCOMPARE(results.viewport.vscScrollWindow()->value(), 0);
    QCOMPARE(results.content->y(), 0);
}

void tst_ScrollingPage::barsMoveThePanelAndHidingThemPutsItBack()
{
    PageUnderTest page(kInputPage, QSize(300, 300), QSize(800, 900));
    page.viewport.vscScrollWindow()->setValue(200);
    page.viewport.hscScrollWindow()->setValue(100);
    QCOMPARE(page.content->pos(), QPoint(-100, -200));
    page.content->resize(200, 200); // a relayout made the page small
    page.viewport.ArrangeScrollBars();
    QCOMPARE(page.content->pos(), QPoint(0, 0));
    QVERIFY(!page.viewport.vscScrollWindow()->isVisibleTo(&page.viewport));
    QCOMPARE(page.viewport.vscScrollWindow()->value(), 0);
}
void tst_ScrollingPage::resizeArrangesUnlessSuspended()
{
    PageUnderTest page(kInputPage, QSize(300, 1000), QSize(200, 900));
    page.viewport.show(); // a hidden widget gets its resize events only when it is shown
    QVERIFY(QTest::qWaitForWindowExposed(&page.viewport));
    QVERIFY(!page.viewport.vscScrollWindow()->isVisibleTo(&page.viewport));
    page.viewport.setArrangeSuspended(true);
    page.viewport.resize(300, 300);
    QVERIFY(!page.viewport.vscScrollWindow()->isVisibleTo(&page.viewport));
    page.viewport.setArrangeSuspended(false);
    page.viewport.resize(300, 310);
    QVERIFY(page.viewport.vscScrollWindow()->isVisibleTo(&page.viewport));
}

void tst_ScrollingPage::makeVisible_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("value");
    // A viewport 100 high, the bar at 50: the panel shows rows 50 to 149. A control in view
    // leaves the bar where it is.
    QTest::newRow("on the top row: stays") << 50 << 20 << 50;
    QTest::newRow("one row above: to the top edge") << 49 << 20 << 49;
    QTest::newRow("far above: to the top edge") << 20 << 20 << 20;
    QTest::newRow("ending on the last row: stays") << 130 << 20 << 50;
    QTest::newRow("one row below: to the bottom edge") << 131 << 20 << 51;
    QTest::newRow("far below: to the bottom edge") << 200 << 20 << 120;
}
void tst_ScrollingPage::makeVisible()
{
    QFETCH(int, top);
    QFETCH(int, height);
    QFETCH(int, value);
    QCOMPARE(IsVisible(top, height, -50, 100), value == 50);
    QVERIFY(!IsVisible(50, 101, -50, 100)); // taller than the view
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 1000);
    bar.setValue(50);
    MakeVisible(top, height, -50, 100, bar);
    QCOMPARE(bar.value(), value);
    // Whatever moved, the control is now wholly visible.
    QVERIFY(IsVisible(top, height, -bar.value(), 100));
}

// Deleting a page deletes its boxes, and that moves the focus while the page is half gone: the
// page must no longer follow the focus then, nor when the focus moves on elsewhere (a fault
// that AddressSanitizer reported as a use after free).
void tst_ScrollingPage::aPageDestroyedWhileFocusMovesBreaksNothing()
{
    QWidget window;
    window.resize(400, 400);
    auto *other = new QLineEdit(&window);
    auto *content = new QWidget;
    content->resize(280, 1200);
    auto *followed = new QLineEdit(content);
    followed->setGeometry(10, 600, 150, 30);
    auto *page = new ScrollingPage(content, kInputPage, &window);
    page->setGeometry(0, 40, 300, 300);
    page->followFocus(followed);
    window.show();
    QApplication::setActiveWindow(&window);
    QVERIFY(QTest::qWaitForWindowActive(&window));
    followed->setFocus();
    QCOMPARE(QApplication::focusWidget(), followed);
    delete page;
    other->setFocus();
    QCOMPARE(QApplication::focusWidget(), other);
}

void tst_ScrollingPage::wheelAndTouchpadScrollThePage_data()
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

void tst_ScrollingPage::wheelAndTouchpadScrollThePage()
{
    QFETCH(QString, over);
    QFETCH(QPoint, pixelDelta);
    QFETCH(QPoint, angleDelta);
    QFETCH(int, pageValue);
    PageUnderTest page(kInputPage, QSize(300, 300), QSize(280, 1200));
    auto *box = new tvrEditBox(page.content);
    box->setGeometry(10, 10, 250, 30);
    auto *label = new QLabel(QStringLiteral("Channel Geometry"), page.content);
    label->setGeometry(10, 50, 250, 30);
    auto *grid = new RdcGridA(page.content);
    grid->setGeometry(10, 90, 250, 150);
    grid->Refresh();
    page.viewport.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page.viewport));
    QWidget *surface = grid->findChild<QWidget *>(QStringLiteral("pic"));
    QWidget *target = over == QLatin1String("box") ? box->editor()
            : over == QLatin1String("label")       ? label
            : over == QLatin1String("grid")        ? surface
                                                   : page.content;

    wheelOver(target, pixelDelta, angleDelta);
    QScrollBar *bar = page.viewport.vscScrollWindow();
    if (pageValue < 0)
        pageValue = QApplication::wheelScrollLines() * bar->singleStep();
    QCOMPARE(bar->value(), pageValue);
    QCOMPARE(page.content->y(), -pageValue);
    QTEST(grid->firstVisibleRow(), "gridFirstRow");
}

QTEST_MAIN(tst_ScrollingPage)
#include "tst_ScrollingPage.moc"
