#include "ScrollingPage.h"

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

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

} // namespace

class tst_ScrollingPage : public QObject
{
    Q_OBJECT

private slots:
    void arrangeScrollBars_data();
    void arrangeScrollBars();
    void resultsPageOpensAtItsTopWhileInputPageKeepsItsPlace();
    void barsMoveTheContentPanel();
    void hidingABarPutsThePanelBackAtTheEdge();
    void resizeArrangesUnlessSuspended();
    void isVisible_data();
    void isVisible();
    void makeVisible_data();
    void makeVisible();
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

void tst_ScrollingPage::barsMoveTheContentPanel()
{
    PageUnderTest page(kInputPage, QSize(300, 300), QSize(800, 900));
    page.viewport.vscScrollWindow()->setValue(120);
    QCOMPARE(page.content->pos(), QPoint(0, -120));
    page.viewport.hscScrollWindow()->setValue(45);
    QCOMPARE(page.content->pos(), QPoint(-45, -120));
}

void tst_ScrollingPage::hidingABarPutsThePanelBackAtTheEdge()
{
    PageUnderTest page(kInputPage, QSize(300, 300), QSize(800, 900));
    page.viewport.vscScrollWindow()->setValue(200);
    page.viewport.hscScrollWindow()->setValue(100);
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

void tst_ScrollingPage::isVisible_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("panelTop");
    QTest::addColumn<bool>("visible");
    // A viewport 100 high; the panel scrolled by 50 shows rows 50 to 149.
    QTest::newRow("on the top row") << 50 << 20 << -50 << true;
    QTest::newRow("one row above") << 49 << 20 << -50 << false;
    QTest::newRow("ending on the last row") << 130 << 20 << -50 << true;
    QTest::newRow("one row below") << 131 << 20 << -50 << false;
    QTest::newRow("taller than the view") << 50 << 101 << -50 << false;
}

void tst_ScrollingPage::isVisible()
{
    QFETCH(int, top);
    QFETCH(int, height);
    QFETCH(int, panelTop);
    QTEST(IsVisible(top, height, panelTop, 100), "visible");
}

void tst_ScrollingPage::makeVisible_data()
{
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("value");
    // A viewport 100 high, the bar at 50.
    QTest::newRow("above: to the top edge") << 20 << 20 << 20;
    QTest::newRow("below: to the bottom edge") << 200 << 20 << 120;
    QTest::newRow("partly below: to the bottom edge") << 140 << 20 << 60;
    QTest::newRow("visible: stays") << 70 << 20 << 50;
}

void tst_ScrollingPage::makeVisible()
{
    QFETCH(int, top);
    QFETCH(int, height);
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 1000);
    bar.setValue(50);
    MakeVisible(top, height, -50, 100, bar);
    QTEST(bar.value(), "value");
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

QTEST_MAIN(tst_ScrollingPage)
#include "tst_ScrollingPage.moc"
