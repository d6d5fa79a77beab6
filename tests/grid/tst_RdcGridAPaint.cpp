#include "GridTestSupport.h"

#include <QPalette>

// Layout, zones, visibility and the colours and clipping of painted cells, read back from the
// drawing surface's pixels.
class tst_RdcGridAPaint : public QObject
{
    Q_OBJECT

private slots:
    void scrollBars();
    void hitZone();
    void visibilityAndMakeCellVisible();
    void colours();
    void textIsAlignedAndClippedInsideItsCell();
    void columnResizeByDragging_data();
    void columnResizeByDragging();
};

namespace {
// A solid glyph: its middle pixel has exactly the text colour, free of antialiasing.
const QString kBlock = QString(QChar(0x2588));

QColor systemColor(const RdcGridA *grid, int index)
{
    return GridColors::systemColor(index, grid->palette());
}

// Every system colour different: 22 (3-D light), 21 (dark shadow), 20 (3-D highlight),
// 16 (button shadow), 18 (button text) and 17 (grey text).
QPalette distinctPalette()
{
    QPalette palette;
    palette.setColor(QPalette::Midlight, QColor(250, 240, 10)); // 22
    palette.setColor(QPalette::Shadow, QColor(10, 20, 30)); // 21
    palette.setColor(QPalette::Light, QColor(240, 250, 250)); // 20
    palette.setColor(QPalette::Dark, QColor(120, 60, 160)); // 16
    palette.setColor(QPalette::ButtonText, QColor(200, 0, 0)); // 18
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0, 200, 0)); // 17
    return palette;
}
} // namespace

// Content: 30 + 65 per column wide, 20 + 20 per row high. A bar one direction needs can make
// the other one needed.
void tst_RdcGridAPaint::scrollBars()
{
    const auto bars = [](int rows, int cols, QSize size) { // (horizontal, vertical) shown
        const GridWindow w(rows, cols, size);
        return std::pair(w.hsc()->isVisible(), w.vsc()->isVisible());
    };
    QCOMPARE(bars(5, 2, QSize(160, 120)), std::pair(false, false)); // everything fits
    // 2 columns need 160: they fit alone, but not beside the bar that 30 rows need.
    QCOMPARE(bars(30, 2, QSize(165, 120)), std::pair(true, true));
    // 5 rows need 120: they fit alone, but not above the bar that 6 columns need.
    QCOMPARE(bars(5, 6, QSize(200, 125)), std::pair(true, true));
}

// Row-header column 30 wide, header row 20 high; the zones share their edges.
void tst_RdcGridAPaint::hitZone()
{
    GridWindow w(5, 2, QSize(200, 150));
    const auto zone = [&](int x, int y) { return RdcGridA::Zone(w.grid->HitZone(x, y)); };
    QCOMPARE(zone(60, 5), RdcGridA::ZoneColumnHeader);
    QCOMPARE(zone(60, 60), RdcGridA::ZoneDataCell);
    QCOMPARE(zone(30, 20), RdcGridA::ZoneDataCell); // the common corner counts as data
    QCOMPARE(zone(60, 20), RdcGridA::ZoneDataCell); // the data's edge below the headers
    QCOMPARE(zone(30, 5), RdcGridA::ZoneCorner); // the corner's right edge
    QCOMPARE(zone(30, 60), RdcGridA::ZoneDataCell); // the row header's right edge is data
}

// Beside the vertical bar, rows 1 to 4 (20..99 of 110) and columns 1 (30..94) and 2 (95..159)
// show whole, column 3 is cut.
void tst_RdcGridAPaint::visibilityAndMakeCellVisible()
{
    GridWindow w(50, 8, QSize(220, 124));
    QCOMPARE(w.pic()->width(), 220 - w.vsc()->width());
    QCOMPARE(w.grid->LastFullyVisibleColumn(), 2);
    QCOMPARE(w.grid->IsCellVisible(1, 1), int(RdcGridA::FullyVisible));
    QCOMPARE(w.grid->IsCellVisible(2, 3), int(RdcGridA::PartlyVisible));
    QCOMPARE(w.grid->IsCellVisible(7, 1), int(RdcGridA::NotVisible));
    w.grid->MakeCellVisible(30, 1);
    QCOMPARE(w.grid->IsCellVisible(30, 1), int(RdcGridA::FullyVisible));
    QCOMPARE(w.grid->firstVisibleRow(), 27); // row 30 becomes the last whole row
    QCOMPARE(w.vsc()->value(), 27);
    w.grid->MakeCellVisible(3, 6);
    QCOMPARE(w.grid->firstVisibleRow(), 3);
    QCOMPARE(w.grid->IsCellVisible(3, 6), int(RdcGridA::FullyVisible));
    QCOMPARE(w.hsc()->value(), w.grid->firstVisibleCol());
    w.grid->MakeCellVisible(3, 1);
    QCOMPARE(w.grid->firstVisibleCol(), 1);
}

// On a palette of distinct colours: the current cell (2, 2) inside a selection to (4, 3), the
// plain cell (5, 1) and the column headers, focused, without the focus and disabled.
void tst_RdcGridAPaint::colours()
{
    GridWindow w(6, 3, QSize(260, 160));
    QVERIFY(w.active);
    const QPalette palette = distinctPalette();
    w.grid->setPalette(palette);
    w.grid->setDefaultDataAlign(RdcGridA::AlignCentre);
    for (int row = 0; row <= 6; ++row)
        for (int col = 1; col <= 3; ++col)
            w.grid->setText(row, col, kBlock);
    w.click(2, 2);
    QTest::keyClick(w.pic(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(w.pic(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(w.pic(), Qt::Key_Right, Qt::ShiftModifier);
    // A cell's fill, a little inside its corner, and its ink, at its centre.
    const auto cell = [&](int row, int col) {
        w.grid->Refresh();
        const QImage image = w.surfaceImage();
        const QRect rect = w.grid->cellRectangle(row, col);
        return std::pair(image.pixelColor(rect.left() + 3, rect.top() + 2),
                         image.pixelColor(rect.center()));
    };
    const auto system = [&](int fill, int ink) {
        return std::pair(systemColor(w.grid, fill), systemColor(w.grid, ink));
    };
    // A header's frame from the top edge down and from the bottom edge up, a little inside its
    // left edge (clear of the caption), and the caption's colour.
    const auto header = [&](int col) {
        w.grid->Refresh();
        const QImage image = w.surfaceImage();
        const QRect rect = w.grid->GetColumnHeaderRectangle(col);
        const int x = rect.left() + 3;
        return std::tuple(image.pixelColor(x, rect.top()), image.pixelColor(x, rect.top() + 1),
                          image.pixelColor(x, rect.bottom() - 1),
                          image.pixelColor(x, rect.bottom()), image.pixelColor(rect.center()));
    };
    const QColor c22 = palette.color(QPalette::Midlight), c21 = palette.color(QPalette::Shadow),
                 c20 = palette.color(QPalette::Light), c16 = palette.color(QPalette::Dark),
                 c18 = palette.color(QPalette::ButtonText);
    // The four colours in order, reversed when pressed; the bottom line is the separator, 21.
    const auto raised = std::tuple(c22, c20, c16, c21, c18);
    QCOMPARE(cell(5, 1), system(5, 8));
    QCOMPARE(cell(3, 3), system(14, 13));
    QCOMPARE(cell(2, 2), system(13, 14));
    QCOMPARE(header(1), raised);
    QCOMPARE(header(2), std::tuple(c16, c21, c22, c21, c18)); // a selected column's
    w.other->setFocus(); // without the focus, the selection takes the inactive colours
    QCOMPARE(cell(3, 3), system(8, 5));
    QCOMPARE(cell(2, 2), system(8, 5));
    w.grid->setEnabled(false); // the headers look the same
    QCOMPARE(cell(5, 1), system(15, 17));
    QCOMPARE(cell(2, 2), system(17, 15));
    QCOMPARE(header(1), raised);
}

// Text is cut 2 pixels inside its cell, whichever side it runs out of: column 2 aligns left,
// column 3 right. A short text keeps to its side.
void tst_RdcGridAPaint::textIsAlignedAndClippedInsideItsCell()
{
    GridWindow w(4, 4, QSize(320, 120));
    w.grid->SetCurrentCell(4, 4);
    w.grid->setColumnAlignment(2, RdcGridA::AlignLeft);
    w.grid->setColumnAlignment(3, RdcGridA::AlignRight);
    for (int col : { 2, 3 }) {
        w.grid->setText(2, col, QString(30, QChar(0x2588)));
        w.grid->setText(3, col, kBlock);
    }
    w.grid->Refresh();
    const QImage image = w.surfaceImage();
    const QColor ink = systemColor(w.grid, GridColors::WindowText);
    const QColor base = systemColor(w.grid, GridColors::WindowBackground);
    // The pixel on the cell's middle line dx in from its left edge (dx < 0: from its right).
    const auto at = [&](int row, int col, int dx) {
        const QRect r = w.grid->cellRectangle(row, col);
        return image.pixelColor(dx >= 0 ? r.left() + dx : r.right() + 1 + dx, r.center().y());
    };
    for (int col : { 2, 3 }) {
        QCOMPARE(at(2, col, 1), base);
        // Ink up to the clipping edges (glyph joins may be antialiased grey, never background).
        QVERIFY(at(2, col, 2) != base);
        QVERIFY(at(2, col, -4) != base);
        QCOMPARE(at(2, col, -3), base);
    }
    QCOMPARE(at(3, 2, 4), ink);
    QCOMPARE(at(3, 2, -5), base);
    QCOMPARE(at(3, 3, -6), ink);
    QCOMPARE(at(3, 3, 4), base);
    // The neighbours on both sides are untouched.
    QCOMPARE(image.pixelColor(w.grid->cellRectangle(2, 1).center()), base);
    QCOMPARE(image.pixelColor(w.grid->cellRectangle(2, 4).center()), base);
}

void tst_RdcGridAPaint::columnResizeByDragging_data()
{
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("width");
    QTest::newRow("wider") << 20 << 85;
    QTest::newRow("4 is the minimum") << -61 << 4;
    QTest::newRow("past the left edge") << -90 << 4;
}

// Dragging column 2's right border: an inverted guide line follows the mouse (drawn again where
// the mouse leaves it, which erases it), and the release sets the width.
void tst_RdcGridAPaint::columnResizeByDragging()
{
    QFETCH(int, dx);
    GridWindow w(4, 3, QSize(300, 120));
    const QRect header = w.grid->GetColumnHeaderRectangle(2);
    const QPoint border(header.right(), header.center().y());
    QCOMPARE(w.grid->HitZone(border.x(), border.y()), int(RdcGridA::ZoneColumnHeader));
    const int leftCol = w.grid->GetSelectionRange().leftCol;
    const QPoint probe(border.x() + 15, w.grid->cellRectangle(2, 3).center().y());
    const QImage clean = w.surfaceImage();
    const QColor under = clean.pixelColor(probe);
    QTest::mousePress(w.pic(), Qt::LeftButton, Qt::NoModifier, border);
    QTest::mouseMove(w.pic(), QPoint(probe.x(), border.y()));
    const QImage during = w.surfaceImage();
    QCOMPARE(during.pixelColor(probe),
             QColor(255 - under.red(), 255 - under.green(), 255 - under.blue()));
    QCOMPARE(during.pixelColor(border.x(), probe.y()), clean.pixelColor(border.x(), probe.y()));
    QTest::mouseMove(w.pic(), border + QPoint(dx, 10));
    QCOMPARE(w.surfaceImage().pixelColor(probe), under);
    QTest::mouseRelease(w.pic(), Qt::LeftButton, Qt::NoModifier, border + QPoint(dx, 10));
    QTEST(w.grid->ColumnWidth(2), "width");
    QCOMPARE(w.grid->ColumnWidth(1), 65);
    QCOMPARE(w.grid->GetSelectionRange().leftCol, leftCol); // no column selected
}

QTEST_MAIN(tst_RdcGridAPaint)
#include "tst_RdcGridAPaint.moc"
