#include "PropertyBag.h"
#include "RatingCurveGrid.h"
#include "RdcGridA.h"

#include <QSignalSpy>
#include <QTest>

// The grid's cell store, its properties and their saving.
class tst_RdcGridA : public QObject
{
    Q_OBJECT

private slots:
    void savedStateLeavesOutDefaults();
    void savedStateRoundTrip();
    void headerLabels();
    void dataWrites_data();
    void dataWrites();
    void cellsKeepTheirSizeUntilClear();
    void colsResizesColumnArrays();
    void columnWidthAndAlignment();
    void clearKeepsHeadersAndGoesHome();
    void rowAndColAsymmetry();
    void ratingCurveGrid();
};

void tst_RdcGridA::savedStateLeavesOutDefaults()
{
    RdcGridA grid;
    PropertyBag fresh;
    grid.writeProperties(fresh);
    QVERIFY(fresh.isEmpty());

    grid.setRows(50);
    grid.setTitle(QStringLiteral("Curve"));
    grid.setBackColor(0x00FF8000u);
    PropertyBag changed;
    grid.writeProperties(changed);
    QCOMPARE(changed.keys(), QStringList({ "Rows", "BackColor", "Title" })); // saving order
    QCOMPARE(changed.ReadProperty("Rows", 10).toInt(), 50);
    QCOMPARE(changed.ReadProperty("BackColor", 0).toUInt(), 0x00FF8000u);
}

void tst_RdcGridA::savedStateRoundTrip()
{
    RdcGridA source;
    source.setDefaultDataColumnWidth(80);
    source.setDefaultRowHeaderWidth(40);
    source.setDefaultDataAlign(3);
    source.setReadOnly(false);
    source.setEnabled(false);
    source.setCols(3);
    source.setRows(25);
    source.setBackColor(0x00112233u);
    source.setCellBackColor(GridColors::tagged(GridColors::ButtonFace));
    source.setTitleVisible(false);
    source.setTitleHeight(25);
    source.setTitle(QStringLiteral("Inlet"));
    source.setHeaderRowHeight(30);
    source.setDataRowHeight(22);
    source.setRowLabelAlign(3);
    source.setBoldColumnHeaders(true);
    source.setColumnWidth(2, 123); // run-time widths are not saved
    source.setColumnAlignment(2, 2);
    PropertyBag bag;
    source.writeProperties(bag);
    QCOMPARE(bag.count(), 16);

    RdcGridA copy;
    copy.readProperties(bag);
    PropertyBag again;
    copy.writeProperties(again);
    QCOMPARE(again.keys(), bag.keys());
    for (const QString &key : bag.keys())
        QCOMPARE(again.ReadProperty(key, QVariant()), bag.ReadProperty(key, QVariant()));
    QCOMPARE(copy.ColumnWidth(0), 40);
    for (int col = 1; col <= 3; ++col) {
        QCOMPARE(copy.ColumnWidth(col), 80);
        QCOMPARE(copy.ColumnAlignment(col), qint16(0));
    }
    QCOMPARE(copy.ColumnAlignment(0), qint16(3));
}

void tst_RdcGridA::headerLabels()
{
    RdcGridA grid;
    grid.setCols(3);
    grid.setRows(5);
    QSignalSpy change(&grid, &RdcGridA::Change);
    QCOMPARE(grid.Text(0, 3), QStringLiteral("3")); // numbered until a header is written
    QCOMPARE(grid.Text(0, 0), QString());
    grid.setText(0, 2, QStringLiteral("Flow"));
    QCOMPARE(grid.Text(0, 2), QStringLiteral("Flow"));
    QCOMPARE(grid.Text(0, 1), QString()); // the labels were created empty
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.Text(0, 4));
    grid.setText(0, 4, QStringLiteral("ignored"));
    QCOMPARE(change.count(), 0);
    QCOMPARE(grid.Changed(), false);
}

void tst_RdcGridA::dataWrites_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("readBack");
    QTest::addColumn<int>("changes");

    QTest::newRow("last cell") << 5 << 2 << 5 << 2 << "v" << 1;
    QTest::newRow("row past Rows") << 5 << 2 << 6 << 1 << "" << 0;
    QTest::newRow("column 0") << 5 << 2 << 1 << 0 << "" << 0;
    QTest::newRow("grid without rows: Change but nothing stored") << 0 << 2 << 1 << 1 << "" << 1;
}

void tst_RdcGridA::dataWrites()
{
    QFETCH(int, rows);
    QFETCH(int, cols);
    QFETCH(int, row);
    QFETCH(int, col);
    QFETCH(QString, readBack);
    QFETCH(int, changes);
    RdcGridA grid;
    grid.setRows(rows);
    grid.setCols(cols);
    QSignalSpy change(&grid, &RdcGridA::Change);
    grid.setText(row, col, QStringLiteral("v"));
    QCOMPARE(change.count(), changes);
    QCOMPARE(grid.Changed(), changes > 0);
    if (row >= 1 && row <= rows)
        QCOMPARE(grid.Text(row, col), readBack);
}

void tst_RdcGridA::cellsKeepTheirSizeUntilClear()
{
    RdcGridA grid;
    grid.setCols(2);
    grid.setRows(50);
    grid.setText(1, 1, QStringLiteral("0"));
    grid.setRows(60);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.setText(55, 1, QStringLiteral("x")));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.Text(55, 1));
    QCOMPARE(grid.Text(55, 3), QString()); // columns are tested before the row is used
    grid.Clear();
    grid.setText(55, 1, QStringLiteral("x"));
    QCOMPARE(grid.Text(55, 1), QStringLiteral("x"));
    QCOMPARE(grid.Text(1, 1), QString());
}

void tst_RdcGridA::colsResizesColumnArrays()
{
    RdcGridA grid;
    grid.setCols(2);
    grid.setColumnWidth(2, 90);
    grid.setColumnAlignment(2, 3);
    grid.setText(0, 1, QStringLiteral("Depth"));
    grid.setCol(5);
    grid.setCols(4);
    QCOMPARE(grid.ColumnWidth(2), 90);
    QCOMPARE(grid.ColumnAlignment(2), qint16(3));
    for (int col = 3; col <= 4; ++col) {
        QCOMPARE(grid.ColumnWidth(col), grid.DefaultDataColumnWidth());
        QCOMPARE(grid.ColumnAlignment(col), qint16(0));
        QCOMPARE(grid.Text(0, col), QString::number(col));
    }
    QCOMPARE(grid.Text(0, 1), QStringLiteral("Depth"));
    QCOMPARE(grid.Col(), 4);
    grid.setCols(1);
    QCOMPARE(grid.Col(), 1);
    QCOMPARE(grid.GetSelectionRange().leftCol, 1); // the anchor column follows
}

void tst_RdcGridA::columnWidthAndAlignment()
{
    RdcGridA grid;
    grid.setCols(2);
    grid.setColumnWidth(3, 99); // past Cols: ignored
    grid.setColumnWidth(-1, 99);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.ColumnWidth(3));
    grid.setColumnWidth(0, 44);
    QCOMPARE(grid.ColumnWidth(0), 44);
    grid.setColumnAlignment(0, 3);
    QCOMPARE(grid.RowLabelAlign(), qint16(3));
    QCOMPARE(grid.ColumnAlignment(0), qint16(3));
    grid.setColumnAlignment(3, 2);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.ColumnAlignment(3));
}

void tst_RdcGridA::clearKeepsHeadersAndGoesHome()
{
    RdcGridA grid;
    grid.setCols(2);
    grid.setRows(40);
    grid.resize(200, 120);
    grid.show();
    grid.setText(0, 1, QStringLiteral("Depth"));
    grid.setText(30, 2, QStringLiteral("7"));
    grid.MakeCellVisible(30, 2);
    grid.SetCurrentCell(30, 2);
    QVERIFY(grid.firstVisibleRow() > 1);
    grid.setChanged(false);
    QSignalSpy change(&grid, &RdcGridA::Change);
    grid.Clear();
    QCOMPARE(change.count(), 1);
    QCOMPARE(grid.Changed(), true);
    QCOMPARE(grid.Text(30, 2), QString());
    QCOMPARE(grid.Text(0, 1), QStringLiteral("Depth"));
    QCOMPARE(grid.firstVisibleRow(), 1);
    QCOMPARE(grid.row(), 1);
    QCOMPARE(grid.Col(), 1);
}

void tst_RdcGridA::rowAndColAsymmetry()
{
    RdcGridA grid;
    grid.setCols(3);
    grid.setRows(10);
    grid.SetCurrentCell(2, 2);
    QCOMPARE(grid.row(), 2);
    QCOMPARE(grid.Col(), 2);

    grid.setCol(3); // the column alone: the selection keeps its corners
    QCOMPARE(grid.Col(), 3);
    RdcGridA::SelectionRange range = grid.GetSelectionRange();
    QCOMPARE(range.leftCol, 2);
    QCOMPARE(range.rightCol, 2);

    grid.setRow(5); // the row goes through SetCurrentCell with the stored column
    range = grid.GetSelectionRange();
    QCOMPARE(grid.row(), 5);
    QCOMPARE(range.topRow, 5);
    QCOMPARE(range.bottomRow, 5);
    QCOMPARE(range.leftCol, 3);
    QCOMPARE(range.rightCol, 3);
}

// Each header of the rating-curve grid shows whole: its widest line fits with room inside the
// cell's clipping.
void tst_RdcGridA::ratingCurveGrid()
{
    RdcGridA grid;
    setupRatingCurveGrid(grid);
    for (int col = 1; col <= 2; ++col) {
        QVERIFY2(grid.ColumnWidth(col) >= grid.headerCaptionWidth(col) + 6,
                 qPrintable(QStringLiteral("column %1 too narrow").arg(col)));
        QCOMPARE(grid.headerCaptionLines(col).join(QLatin1Char(' ')),
                 grid.Text(0, col).replace(QStringLiteral("\r\n"), QStringLiteral(" ")));
    }
}

QTEST_MAIN(tst_RdcGridA)
#include "tst_RdcGridA.moc"
