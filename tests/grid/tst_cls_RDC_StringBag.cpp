#include "cls_RDC_StringBag.h"

#include <QTest>

// The store's rules, with the faults it keeps on purpose.
class tst_cls_RDC_StringBag : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void writes_data();
    void writes();
    void laterChangesDoNotResize();
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
} // namespace

void tst_cls_RDC_StringBag::reads_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    QTest::addColumn<bool>("autoRowNumber");
    QTest::addColumn<bool>("allocate");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("expected");

    QTest::newRow("unallocated data cell") << 5 << 2 << true << false << 1 << 1 << "";
    QTest::newRow("row number 12, no blanks") << 20 << 2 << true << true << 12 << 0 << "12";
    QTest::newRow("column 0 stored when numbering is off")
            << 5 << 2 << false << true << 3 << 0 << "";
    QTest::newRow("row past Rows") << 5 << 2 << true << true << 6 << 1 << "";
}

void tst_cls_RDC_StringBag::reads()
{
    QFETCH(int, rows);
    QFETCH(int, cols);
    QFETCH(bool, autoRowNumber);
    QFETCH(bool, allocate);
    QFETCH(int, row);
    QFETCH(int, col);
    QFETCH(QString, expected);
    const cls_RDC_StringBag bag = makeBag(rows, cols, autoRowNumber, allocate);
    QCOMPARE(bag.Text(row, col), expected);
}

void tst_cls_RDC_StringBag::writes_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("cols");
    QTest::addColumn<bool>("autoRowNumber");
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("col");
    QTest::addColumn<QString>("readBack"); // "<fault>" when the write raises StoreIndexError

    QTest::newRow("single row never allocates") << 1 << 3 << true << 1 << 2 << "";
    QTest::newRow("row 0 is in the array") << 3 << 2 << true << 0 << 2 << "x";
    QTest::newRow("column 0 stored when numbering is off") << 3 << 2 << false << 2 << 0 << "x";
    QTest::newRow("column 0 is not in a numbered array") << 3 << 2 << true << 2 << 0 << "<fault>";
    QTest::newRow("row past the array") << 3 << 2 << true << 4 << 1 << "<fault>";
    QTest::newRow("column past the array") << 3 << 2 << true << 1 << 3 << "<fault>";
}

void tst_cls_RDC_StringBag::writes()
{
    QFETCH(int, rows);
    QFETCH(int, cols);
    QFETCH(bool, autoRowNumber);
    QFETCH(int, row);
    QFETCH(int, col);
    QFETCH(QString, readBack);
    cls_RDC_StringBag bag = makeBag(rows, cols, autoRowNumber, false);
    if (readBack == QLatin1String("<fault>")) {
        QVERIFY_THROWS_EXCEPTION(StoreIndexError, bag.setText(row, col, QStringLiteral("x")));
        return;
    }
    bag.setText(row, col, QStringLiteral("x"));
    QCOMPARE(bag.Text(row, col), readBack);
    if (readBack.isEmpty()) { // an ignored write leaves every cell empty
        for (int r = 0; r <= rows; ++r)
            for (int c = 1; c <= cols; ++c)
                QCOMPARE(bag.Text(r, c), QString());
    }
}

void tst_cls_RDC_StringBag::laterChangesDoNotResize()
{
    // More rows after the first write: inside Rows but outside the array is a fault.
    cls_RDC_StringBag grown = makeBag(3, 2, true, true);
    grown.setRows(6);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grown.Text(5, 1));
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, grown.setText(5, 1, QStringLiteral("x")));

    // Numbering turned off after the first write: column 0 reads a column that does not exist.
    cls_RDC_StringBag renumbered = makeBag(3, 2, true, true);
    renumbered.setAutoRowNumber(false);
    QVERIFY_THROWS_EXCEPTION(StoreIndexError, renumbered.Text(2, 0));

    // Fewer columns: the cells beyond stay in the array but read "".
    cls_RDC_StringBag narrowed = makeBag(3, 2, true, false);
    narrowed.setText(2, 2, QStringLiteral("kept"));
    narrowed.setCols(1);
    QCOMPARE(narrowed.Text(2, 2), QString());
    narrowed.setCols(2);
    QCOMPARE(narrowed.Text(2, 2), QStringLiteral("kept"));
}

QTEST_APPLESS_MAIN(tst_cls_RDC_StringBag)
#include "tst_cls_RDC_StringBag.moc"
