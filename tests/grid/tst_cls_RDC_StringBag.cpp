#include "cls_RDC_StringBag.h"

#include <QTest>

// The store's rules, with the faults it keeps on purpose.
class tst_cls_RDC_StringBag : public QObject
{
    Q_OBJECT

private slots:
    void storeRules();
};

namespace {
// A bag of rows x cols; when allocate is set, cell (1, 1) is written first so the array exists.
cls_RDC_StringBag makeBag(int rows, int cols, bool autoRowNumber, bool allocate)
{
    cls_RDC_StringBag bag;
    bag.setRows(rows);
    bag.setCols(cols);
    bag.setAutoRowNumber(autoRowNumber);
    if (allocate)
        bag.setText(1, 1, QStringLiteral("a"));
    return bag;
}

// Writes "x" to (row, col) and reads the cell back.
QString writeAndRead(cls_RDC_StringBag bag, int row, int col)
{
    bag.setText(row, col, QStringLiteral("x"));
    return bag.Text(row, col);
}
} // namespace

void tst_cls_RDC_StringBag::storeRules()
{
    // Reads: "" before the first write and past Rows; column 0 numbers the rows, no blanks.
    QCOMPARE(makeBag(5, 2, true, false).Text(1, 1), QString());
    QCOMPARE(makeBag(5, 2, true, true).Text(6, 1), QString());
    QCOMPARE(makeBag(20, 2, true, true).Text(12, 0), QStringLiteral("12"));
    // Writes: a single row never allocates; row 0 is in the array, and so is column 0 unless
    // the rows are numbered; nothing outside the array.
    QCOMPARE(writeAndRead(makeBag(1, 3, true, false), 1, 2), QString());
    QCOMPARE(writeAndRead(makeBag(3, 2, true, false), 0, 2), QStringLiteral("x"));
    QCOMPARE(writeAndRead(makeBag(3, 2, false, false), 2, 0), QStringLiteral("x"));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, writeAndRead(makeBag(3, 2, true, false), 2, 0));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, writeAndRead(makeBag(3, 2, true, false), 4, 1));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, writeAndRead(makeBag(3, 2, true, false), 1, 3));

    // Later changes never resize the array. More rows: inside Rows but outside it is a fault.
    cls_RDC_StringBag bag = makeBag(3, 2, true, true);
    bag.setText(2, 2, QStringLiteral("kept"));
    bag.setRows(6);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, bag.Text(5, 1));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, bag.setText(5, 1, QStringLiteral("x")));
    // Fewer columns: the cells beyond stay in the array but read "".
    bag.setCols(1);
    QCOMPARE(bag.Text(2, 2), QString());
    bag.setCols(2);
    QCOMPARE(bag.Text(2, 2), QStringLiteral("kept"));
    // Numbering turned off: column 0 reads a column that does not exist.
    bag.setAutoRowNumber(false);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, bag.Text(2, 0));
}

QTEST_APPLESS_MAIN(tst_cls_RDC_StringBag)
#include "tst_cls_RDC_StringBag.moc"
