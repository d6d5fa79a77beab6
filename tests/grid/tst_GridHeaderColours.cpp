#include "GridTestSupport.h"

#include <QPalette>

// The header cells' 3-D frame and captions, read off the drawing surface with a palette whose
// system colours are all different: 22 (3-D light), 21 (dark shadow), 20 (3-D highlight),
// 16 (button shadow) and 18 (button text).
class tst_GridHeaderColours : public QObject
{
    Q_OBJECT

private slots:
    void frameUsesTheFourColoursInOrder_data();
    void frameUsesTheFourColoursInOrder();
    void captionsKeepTheirColourWhenDisabled();

private:
    static QPalette distinctPalette();
};

QPalette tst_GridHeaderColours::distinctPalette()
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

// Rows of the header frame from the top edge down and from the bottom edge up, as a pixel a
// little inside the left edge (clear of the centred caption) shows them. The bottom line is
// the header separator, always colour 21.
void tst_GridHeaderColours::frameUsesTheFourColoursInOrder_data()
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

void tst_GridHeaderColours::frameUsesTheFourColoursInOrder()
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
void tst_GridHeaderColours::captionsKeepTheirColourWhenDisabled()
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

QTEST_MAIN(tst_GridHeaderColours)
#include "tst_GridHeaderColours.moc"
