#include "GridTestSupport.h"
#include "PropertyBag.h"
#include "RatingCurveGrid.h"

#include <QSignalSpy>

// The grid's cell store, its properties and their saving.
class tst_RdcGridA : public QObject
{
    Q_OBJECT

private slots:
    void savedState();
    void headerLabels();
    void dataWrites();
    void columnArrays();
    void rowsGrowUntilClear();
    void rowAndColAsymmetry();
    void ratingCurveGrid();
};

// Only what differs from the defaults is saved. The rating-curve grid's properties come back
// whole, and reading them starts the column widths and alignments again from the defaults.
void tst_RdcGridA::savedState()
{
    RdcGridA grid;
    PropertyBag fresh;
    grid.writeProperties(fresh);
    QVERIFY(fresh.isEmpty());
    grid.setColumnWidth(1, 123);
    const PropertyBag bag = ratingCurveGridProperties();
    grid.readProperties(bag);
    PropertyBag again;
    grid.writeProperties(again);
    QCOMPARE(again.keys(), bag.keys());
    for (const QString &key : bag.keys())
        QCOMPARE(again.ReadProperty(key, QVariant()), bag.ReadProperty(key, QVariant()));
    QCOMPARE(grid.ColumnWidth(1), grid.DefaultDataColumnWidth());
    QCOMPARE(grid.ColumnAlignment(0), qint16(RdcGridA::AlignCentre)); // the row labels' alignment
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

void tst_RdcGridA::dataWrites()
{
    // "v" written to (row, col) of a fresh grid of `rows` x 2: the text read back there, the
    // number of Change signals and Changed().
    const auto write = [](int rows, int row, int col) {
        RdcGridA grid;
        grid.setRows(rows);
        grid.setCols(2);
        QSignalSpy change(&grid, &RdcGridA::Change);
        grid.setText(row, col, QStringLiteral("v"));
        return std::tuple(grid.Text(row, col), int(change.count()), grid.Changed());
    };
    QCOMPARE(write(5, 5, 2), std::tuple(QStringLiteral("v"), 1, true)); // the last cell
    QCOMPARE(write(5, 6, 1), std::tuple(QString(), 0, false)); // a row past Rows
    QCOMPARE(write(5, 1, 0), std::tuple(QString(), 0, false)); // column 0
    // A grid without rows answers with a Change, although nothing is stored.
    QCOMPARE(write(0, 1, 1), std::tuple(QString(), 1, true));
}

// Cols 2 to 4: the old columns keep their width and alignment, the new ones take the defaults
// and are numbered, and a current column past the new Cols follows it. Writes outside 0..Cols
// are ignored; reads there fault.
void tst_RdcGridA::columnArrays()
{
    RdcGridA grid;
    grid.setCols(2);
    grid.setColumnWidth(2, 90);
    grid.setColumnAlignment(2, 3);
    grid.setText(0, 1, QStringLiteral("Depth"));
    grid.setColumnWidth(3, 99);
    grid.setColumnWidth(-1, 99);
    grid.setColumnAlignment(3, 2);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.ColumnWidth(3));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.ColumnAlignment(3));
    grid.setColumnWidth(0, 44);
    QCOMPARE(grid.ColumnWidth(0), 44);
    grid.setColumnAlignment(0, 3); // column 0's alignment is the row labels'
    QCOMPARE(grid.RowLabelAlign(), qint16(3));
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

// More rows leave the cells their old size until Clear, as a project's load does it. Clear
// keeps the headers, goes home and raises Change once.
void tst_RdcGridA::rowsGrowUntilClear()
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
    grid.setRows(50);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.setText(45, 1, QStringLiteral("x")));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grid.Text(45, 1));
    QCOMPARE(grid.Text(45, 3), QString()); // columns are tested before the row is used
    grid.setChanged(false);
    QSignalSpy change(&grid, &RdcGridA::Change);
    grid.Clear();
    QCOMPARE(change.count(), 1);
    QVERIFY(grid.Changed());
    QCOMPARE(grid.Text(30, 2), QString());
    QCOMPARE(grid.Text(0, 1), QStringLiteral("Depth"));
    QCOMPARE(grid.firstVisibleRow(), 1);
    QCOMPARE(QPoint(grid.Col(), grid.row()), QPoint(1, 1));
    grid.setText(45, 1, QStringLiteral("x"));
    QCOMPARE(grid.Text(45, 1), QStringLiteral("x"));
}

void tst_RdcGridA::rowAndColAsymmetry()
{
    RdcGridA grid;
    grid.setCols(3);
    grid.setRows(10);
    grid.SetCurrentCell(2, 2);
    grid.setCol(3); // the column alone: the selection keeps its corners
    QCOMPARE(grid.Col(), 3);
    QCOMPARE(selectionOf(&grid), range(2, 2, 2, 2));
    grid.setRow(5); // the row goes through SetCurrentCell with the stored column
    QCOMPARE(grid.row(), 5);
    QCOMPARE(selectionOf(&grid), range(5, 3, 5, 3));
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
