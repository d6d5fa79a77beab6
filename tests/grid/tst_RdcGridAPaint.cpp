#include "GridTestSupport.h"

#include <QPalette>
#include <QSignalSpy>

// Layout, zones, visibility and the colours and clipping of painted cells, read back from the
// drawing surface's pixels.
class tst_RdcGridAPaint : public QObject
{
    Q_OBJECT

private slots:
    void scrollBars_data();
    void scrollBars();
    void hitZone_data();
    void hitZone();
    void visibility_data();
    void visibility();
    void makeCellVisibleScrolls();
    void cellColours_data();
    void cellColours();
    void longTextIsClippedInsideItsCell();
    void columnResizeByDragging_data();
    void columnResizeByDragging();
    void resizeGuideInvertsAndErases();
    void headerFrameUsesTheFourColoursInOrder_data();
    void headerFrameUsesTheFourColoursInOrder();
    void headerCaptionsKeepTheirColourWhenDisabled();
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

void tst_RdcGridAPaint::scrollBars_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");

    // Content: 30 + 65 per column wide, 20 + 20 per row high.
    QTest::newRow("everything fits") << 5 << 2 << 160 << 120 << false << false;
    // 2 columns need 160: fits alone, but not beside the vertical bar that the rows need.
    QTest::newRow("vertical bar forces horizontal") << 30 << 2 << 165 << 120 << true << true;
    // 5 rows need 120: fits alone, not above the horizontal bar.
    QTest::newRow("horizontal bar forces vertical") << 5 << 6 << 200 << 125 << true << true;
}

void tst_RdcGridAPaint::scrollBars()
{
    QFETCH(int, rows);
    QFETCH(int, cols);
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(bool, horizontal);
    QFETCH(bool, vertical);
    GridWindow w(rows, cols, QSize(width, height));
    QCOMPARE(w.hsc()->isVisible(), horizontal);
    QCOMPARE(w.vsc()->isVisible(), vertical);
    const int barWidth = vertical ? w.vsc()->width() : 0;
    QCOMPARE(w.pic()->width(), width - barWidth);
}

void tst_RdcGridAPaint::hitZone_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("zone");
    // Row-header column 30 wide, header row 20 high; the zones share their edges.
    QTest::newRow("column header") << QPoint(60, 5) << int(RdcGridA::ZoneColumnHeader);
    QTest::newRow("data cell") << QPoint(60, 60) << int(RdcGridA::ZoneDataCell);
    QTest::newRow("common corner counts as data") << QPoint(30, 20) << int(RdcGridA::ZoneDataCell);
    QTest::newRow("data edge below the headers") << QPoint(60, 20) << int(RdcGridA::ZoneDataCell);
    QTest::newRow("corner's right edge") << QPoint(30, 5) << int(RdcGridA::ZoneCorner);
    QTest::newRow("row header's right edge is data")
            << QPoint(30, 60) << int(RdcGridA::ZoneDataCell);
}

void tst_RdcGridAPaint::hitZone()
{
    QFETCH(QPoint, point);
    QFETCH(int, zone);
    GridWindow w(5, 2, QSize(200, 150));
    QCOMPARE(w.grid->HitZone(point.x(), point.y()), zone);
}

void tst_RdcGridAPaint::visibility_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::addColumn<int>("expected");
    // Surface 180 x 110 beside the vertical bar: columns 1 (30..94) and 2 (95..159) whole,
    // column 3 from 160 cut; rows 1 to 4 whole (20..99), row 5 from 100 cut.
    QTest::newRow("whole") << 1 << 1 << int(RdcGridA::FullyVisible);
    QTest::newRow("column cut, row whole") << 2 << 3 << int(RdcGridA::PartlyVisible);
    QTest::newRow("row below the surface") << 7 << 1 << int(RdcGridA::NotVisible);
}

void tst_RdcGridAPaint::visibility()
{
    QFETCH(int, row);
    QFETCH(int, col);
    QFETCH(int, expected);
    GridWindow w(20, 4, QSize(200, 110 + 14));
    QCOMPARE(w.pic()->width(), 200 - w.vsc()->width());
    QCOMPARE(w.grid->IsCellVisible(row, col), expected);
    QCOMPARE(w.grid->LastFullyVisibleColumn(), 2);
}

void tst_RdcGridAPaint::makeCellVisibleScrolls()
{
    GridWindow w(50, 8, QSize(220, 124)); // 4 whole rows, columns 1 and 2 whole
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

void tst_RdcGridAPaint::cellColours_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("focused");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("fill");
    QTest::addColumn<int>("ink");

    using namespace GridColors;
    const int plain = RdcGridA::PlainCell, selected = RdcGridA::SelectedCell,
              current = RdcGridA::MarkedCurrentCell;
    QTest::newRow("plain, focused") << true << true << plain << 5 << 8;
    QTest::newRow("plain, disabled") << false << false << plain << 15 << 17;
    QTest::newRow("selected, focused") << true << true << selected << 14 << 13;
    QTest::newRow("selected, not focused") << true << false << selected << 8 << 5;
    QTest::newRow("current, focused") << true << true << current << 13 << 14;
    QTest::newRow("current, disabled") << false << true << current << 17 << 15;
}

void tst_RdcGridAPaint::cellColours()
{
    QFETCH(bool, enabled);
    QFETCH(bool, focused);
    QFETCH(int, mode);
    QFETCH(int, fill);
    QFETCH(int, ink);
    GridWindow w(6, 3, QSize(260, 160));
    w.grid->setDefaultDataAlign(RdcGridA::AlignCentre);
    for (int row = 1; row <= 6; ++row)
        for (int col = 1; col <= 3; ++col)
            w.grid->setText(row, col, kBlock);
    // The current cell (2, 2) inside a selection to (4, 3); (5, 1) stays plain.
    if (focused)
        w.click(2, 2);
    else
        w.grid->SetCurrentCell(2, 2);
    QTest::keyClick(w.pic(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(w.pic(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(w.pic(), Qt::Key_Right, Qt::ShiftModifier);
    if (!focused)
        w.other->setFocus(); // taking the focus away gives the inactive colours
    w.grid->setEnabled(enabled);
    w.grid->Refresh();

    const QPoint cell = mode == RdcGridA::PlainCell ? QPoint(1, 5)
            : mode == RdcGridA::SelectedCell        ? QPoint(3, 3)
                                                    : QPoint(2, 2);
    const QRect rect = w.grid->cellRectangle(cell.y(), cell.x());
    const QImage image = w.surfaceImage();
    QCOMPARE(image.pixelColor(rect.left() + 3, rect.top() + 2), systemColor(w.grid, fill));
    QCOMPARE(image.pixelColor(rect.center()), systemColor(w.grid, ink));
}

void tst_RdcGridAPaint::longTextIsClippedInsideItsCell()
{
    // Column 2 aligns left (the text runs out to the right), column 3 right (out to the left).
    GridWindow w(4, 4, QSize(320, 120));
    w.grid->SetCurrentCell(4, 4);
    w.grid->setColumnAlignment(2, RdcGridA::AlignLeft);
    w.grid->setColumnAlignment(3, RdcGridA::AlignRight);
    w.grid->setText(2, 2, QString(30, QChar(0x2588)));
    w.grid->setText(2, 3, QString(30, QChar(0x2588)));
    w.grid->setText(3, 2, kBlock); // a short text shows at its side of the cell
    w.grid->setText(3, 3, kBlock);
    w.grid->Refresh();
    const QImage image = w.surfaceImage();
    const QColor ink = systemColor(w.grid, GridColors::WindowText);
    const QColor base = systemColor(w.grid, GridColors::WindowBackground);
    for (int col : { 2, 3 }) {
        const QRect rect = w.grid->cellRectangle(2, col);
        const int y = rect.center().y();
        QCOMPARE(image.pixelColor(rect.left(), y), base);
        QCOMPARE(image.pixelColor(rect.left() + 1, y), base);
        // Ink up to the clipping edges (glyph joins may be antialiased grey, never background).
        QVERIFY(image.pixelColor(rect.left() + 2, y) != base);
        QVERIFY(image.pixelColor(rect.right() - 3, y) != base);
        QCOMPARE(image.pixelColor(rect.center()), ink);
        QCOMPARE(image.pixelColor(rect.right() - 2, y), base);
        QCOMPARE(image.pixelColor(rect.right() - 1, y), base);
    }
    const QRect left = w.grid->cellRectangle(3, 2), right = w.grid->cellRectangle(3, 3);
    const int y = left.center().y();
    QCOMPARE(image.pixelColor(left.left() + 4, y), ink);
    QCOMPARE(image.pixelColor(left.right() - 4, y), base);
    QCOMPARE(image.pixelColor(right.right() - 5, y), ink);
    QCOMPARE(image.pixelColor(right.left() + 4, y), base);
    // The neighbours on both sides are untouched.
    QCOMPARE(image.pixelColor(w.grid->cellRectangle(2, 1).center()), base);
    QCOMPARE(image.pixelColor(w.grid->cellRectangle(2, 4).center()), base);
}

void tst_RdcGridAPaint::columnResizeByDragging_data()
{
    QTest::addColumn<int>("dx");
    QTest::addColumn<int>("expectedWidth");
    QTest::newRow("wider") << 20 << 85;
    QTest::newRow("4 is the minimum") << -61 << 4;
    QTest::newRow("past the left edge") << -90 << 4;
}

void tst_RdcGridAPaint::columnResizeByDragging()
{
    QFETCH(int, dx);
    QFETCH(int, expectedWidth);
    GridWindow w(4, 3, QSize(300, 120));
    const QRect header = w.grid->GetColumnHeaderRectangle(2);
    const QPoint border(header.right(), header.center().y());
    QCOMPARE(w.grid->HitZone(border.x(), border.y()), int(RdcGridA::ZoneColumnHeader));
    const RdcGridA::SelectionRange before = w.grid->GetSelectionRange();
    QTest::mousePress(w.pic(), Qt::LeftButton, Qt::NoModifier, border);
    QTest::mouseMove(w.pic(), border + QPoint(dx, 10));
    QTest::mouseRelease(w.pic(), Qt::LeftButton, Qt::NoModifier, border + QPoint(dx, 10));
    QCOMPARE(w.grid->ColumnWidth(2), expectedWidth);
    QCOMPARE(w.grid->ColumnWidth(1), 65);
    QCOMPARE(w.grid->GetSelectionRange().leftCol, before.leftCol); // no column selected
}

void tst_RdcGridAPaint::resizeGuideInvertsAndErases()
{
    GridWindow w(4, 3, QSize(300, 120));
    const QRect header = w.grid->GetColumnHeaderRectangle(1);
    const QPoint border(header.right(), header.center().y());
    const QPoint guide = border + QPoint(15, 0);
    const QPoint probe(guide.x(), w.grid->cellRectangle(2, 2).center().y());
    const QImage clean = w.surfaceImage();
    QTest::mousePress(w.pic(), Qt::LeftButton, Qt::NoModifier, border);
    QTest::mouseMove(w.pic(), guide);
    const QImage during = w.surfaceImage();
    const QColor under = clean.pixelColor(probe);
    QCOMPARE(during.pixelColor(probe),
             QColor(255 - under.red(), 255 - under.green(), 255 - under.blue()));
    QCOMPARE(during.pixelColor(border.x(), probe.y()), clean.pixelColor(border.x(), probe.y()));
    QTest::mouseMove(w.pic(), guide + QPoint(5, 0));
    QCOMPARE(w.surfaceImage().pixelColor(probe), under); // the old guide is erased
    QTest::mouseRelease(w.pic(), Qt::LeftButton, Qt::NoModifier, guide + QPoint(5, 0));
}

// Rows of the header frame from the top edge down and from the bottom edge up, as a pixel a
// little inside the left edge (clear of the centred caption) shows them. The bottom line is
// the header separator, always colour 21.
void tst_RdcGridAPaint::headerFrameUsesTheFourColoursInOrder_data()
{
    QTest::addColumn<int>("col");
    QTest::addColumn<QColor>("top");
    QTest::addColumn<QColor>("belowTop");
    QTest::addColumn<QColor>("aboveBottom");
    const QPalette p = distinctPalette();
    const QColor c22 = p.color(QPalette::Midlight), c21 = p.color(QPalette::Shadow),
                 c20 = p.color(QPalette::Light), c16 = p.color(QPalette::Dark);
    QTest::newRow("raised (another column)") << 2 << c22 << c20 << c16;
    QTest::newRow("pressed (the current cell's column)") << 1 << c16 << c21 << c22;
}

void tst_RdcGridAPaint::headerFrameUsesTheFourColoursInOrder()
{
    QFETCH(int, col);
    QFETCH(QColor, top);
    QFETCH(QColor, belowTop);
    QFETCH(QColor, aboveBottom);
    GridWindow w(4, 3, QSize(260, 140));
    w.grid->setPalette(distinctPalette());
    w.grid->SetCurrentCell(1, 1);
    w.grid->Refresh();
    const QImage image = w.surfaceImage();
    const QRect header = w.grid->GetColumnHeaderRectangle(col);
    const int x = header.left() + 3;
    QCOMPARE(image.pixelColor(x, header.top()), top);
    QCOMPARE(image.pixelColor(x, header.top() + 1), belowTop);
    QCOMPARE(image.pixelColor(x, header.bottom() - 1), aboveBottom);
    QCOMPARE(image.pixelColor(x, header.bottom()), distinctPalette().color(QPalette::Shadow));
}

// A row header away from the selection looks the same on a disabled grid: same frame, same
// caption colour.
void tst_RdcGridAPaint::headerCaptionsKeepTheirColourWhenDisabled()
{
    GridWindow w(4, 3, QSize(260, 140));
    w.grid->setPalette(distinctPalette());
    w.grid->SetCurrentCell(1, 1);
    w.grid->Refresh();
    const QRect cell = w.grid->cellRectangle(3, 1);
    const QRect rowHeader(0, cell.top(), w.grid->GetColumnHeaderRectangle(1).left(), cell.height());
    const QImage enabled = w.surfaceImage().copy(rowHeader);
    w.grid->setEnabled(false);
    w.grid->Refresh();
    const QImage disabled = w.surfaceImage().copy(rowHeader);
    QCOMPARE(disabled, enabled);
    // The caption's strokes are red (button text), not green (grey text), antialiased or not.
    bool captionDrawn = false;
    for (int y = 0; y < enabled.height(); ++y) {
        for (int x = 0; x < enabled.width(); ++x) {
            const QColor pixel = enabled.pixelColor(x, y);
            captionDrawn = captionDrawn || (pixel.red() > 120 && pixel.green() < 60);
        }
    }
    QVERIFY2(captionDrawn, "the row number is drawn in button text");
}

QTEST_MAIN(tst_RdcGridAPaint)
#include "tst_RdcGridAPaint.moc"
