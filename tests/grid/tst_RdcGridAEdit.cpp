#include "GridTestSupport.h"

#include <QSignalSpy>

// Working in the grid: keys, the in-place editor, the mouse and the clipboard.
class tst_RdcGridAEdit : public QObject
{
    Q_OBJECT

private slots:
    void keys();
    void pageKeys();
    void editing_data();
    void editing();
    void commands_data();
    void commands();
    void paste_data();
    void paste();
    void clicks();
    void dragSelectsAndAutoScrolls();
};

// One key from a given current cell: where the current cell (column, row) and the selection go;
// a moving key changes nothing and starts no edit. Data stands in (6, 1) and (2, 3): the last
// used row and column come from different cells.
void tst_RdcGridAEdit::keys()
{
    const auto press = [](int row, int col, const char *keys) {
        GridWindow w(10, 3, QSize(260, 260));
        w.grid->setText(6, 1, QStringLiteral("x"));
        w.grid->setText(2, 3, QStringLiteral("y"));
        w.grid->SetCurrentCell(row, col);
        QSignalSpy change(w.grid, &RdcGridA::Change);
        QTest::keySequence(w.pic(), QKeySequence(QString::fromLatin1(keys)));
        const bool quiet = change.isEmpty() && !w.grid->isEditing();
        return std::tuple(QPoint(w.grid->Col(), w.grid->row()), selectionOf(w.grid), quiet);
    };
    QCOMPARE(press(2, 2, "Down"), std::tuple(QPoint(2, 3), range(3, 2, 3, 2), true));
    // Enter walks right, and at the row's end on to the next row.
    QCOMPARE(press(2, 2, "Return"), std::tuple(QPoint(3, 2), range(2, 3, 2, 3), true));
    QCOMPARE(press(2, 3, "Enter"), std::tuple(QPoint(1, 3), range(3, 1, 3, 1), true));
    QCOMPARE(press(4, 2, "Ctrl+Shift+Home"), std::tuple(QPoint(2, 4), range(1, 1, 4, 2), true));
    QCOMPARE(press(4, 1, "End"), std::tuple(QPoint(3, 4), range(4, 3, 4, 3), true));
    QCOMPARE(press(1, 1, "Ctrl+End"), std::tuple(QPoint(3, 6), range(6, 3, 6, 3), true));
    QCOMPARE(press(2, 2, "Ctrl+A"), std::tuple(QPoint(2, 2), range(1, 1, 10, 3), true));
}

void tst_RdcGridAEdit::pageKeys()
{
    GridWindow w(50, 2, QSize(200, 20 + 5 * 20 + 10)); // five whole rows a page
    w.grid->SetCurrentCell(2, 1);
    QTest::keyClick(w.pic(), Qt::Key_PageUp); // already at the top: nothing
    QCOMPARE(w.grid->row(), 2);
    QTest::keyClick(w.pic(), Qt::Key_PageDown);
    QCOMPARE(w.grid->firstVisibleRow(), 6);
    QCOMPARE(w.grid->row(), 7);
    QTest::keyClick(w.pic(), Qt::Key_PageDown, Qt::ShiftModifier);
    QCOMPARE(w.grid->firstVisibleRow(), 11);
    QCOMPARE(selectionOf(w.grid), range(7, 1, 12, 1));
    // Page Up scrolls back a page and moves the current cell (still row 7) a page up, into view.
    QTest::keyClick(w.pic(), Qt::Key_PageUp);
    QCOMPARE(w.grid->row(), 2);
    QCOMPARE(w.grid->firstVisibleRow(), 2);
    QCOMPARE(w.grid->IsCellVisible(2, 1), int(RdcGridA::FullyVisible));
}

// An edit of cell (2, 2), which holds " 1.2 ": how it starts, and how it ends. The editor opens
// on the trimmed text with the caret at its end, so "F2, then 5" gives 1.25.
void tst_RdcGridAEdit::editing_data()
{
    QTest::addColumn<QString>("startKeys"); // typed on the surface; "F2" for the F2 key
    QTest::addColumn<QString>("typed"); // typed in the editor
    QTest::addColumn<int>("endKey"); // 0: the focus moves to another control
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("row"); // the current row afterwards
    QTest::addColumn<int>("changes");

    QTest::newRow("F2 keeps the text, Enter commits")
            << "F2"
            << "5" << int(Qt::Key_Return) << "1.25" << 2 << 2;
    QTest::newRow("a typed digit replaces the text")
            << "7"
            << ".5" << int(Qt::Key_Return) << "7.5" << 2 << 2;
    QTest::newRow("blanks are trimmed on commit") << "F2"
                                                  << "  " << int(Qt::Key_Return) << "1.2" << 2 << 2;
    QTest::newRow("Escape stores nothing") << "9"
                                           << "9" << int(Qt::Key_Escape) << " 1.2 " << 2 << 0;
    QTest::newRow("Down commits and moves down") << "3"
                                                 << "" << int(Qt::Key_Down) << "3" << 3 << 2;
    QTest::newRow("Up commits and moves up") << "4"
                                             << "" << int(Qt::Key_Up) << "4" << 1 << 2;
    QTest::newRow("losing the focus commits") << "1"
                                              << "2" << 0 << "12" << 2 << 2;
}

void tst_RdcGridAEdit::editing()
{
    QFETCH(QString, startKeys);
    QFETCH(QString, typed);
    QFETCH(int, endKey);
    GridWindow w(5, 2, QSize(200, 150));
    QVERIFY(w.active);
    w.grid->setText(2, 2, QStringLiteral(" 1.2 "));
    w.click(2, 2);
    QSignalSpy change(w.grid, &RdcGridA::Change);
    if (startKeys == QLatin1String("F2"))
        QTest::keyClick(w.pic(), Qt::Key_F2);
    else
        QTest::keyClicks(w.pic(), startKeys);
    QVERIFY(w.grid->isEditing());
    QVERIFY(w.txt()->hasFocus());
    const QRect cell = w.grid->cellRectangle(2, 2); // the editor covers its cell, no more
    QVERIFY(w.txt()->geometry().contains(cell.adjusted(0, 0, -1, -1)));
    QVERIFY(w.txt()->geometry().width() <= cell.width() + 2);
    QTest::keyClicks(w.txt(), typed);
    if (endKey != 0)
        QTest::keyClick(w.txt(), Qt::Key(endKey));
    else
        w.other->setFocus(Qt::TabFocusReason);
    QVERIFY(!w.grid->isEditing());
    QVERIFY(!w.txt()->isVisible());
    QTEST(w.grid->Text(2, 2), "text");
    QTEST(w.grid->row(), "row");
    QCOMPARE(w.grid->Col(), 2);
    QTEST(int(change.count()), "changes");
    QCOMPARE(w.other->hasFocus(), endKey == 0); // the focus stays where the user sent it
}

// Copy, cut and Delete on a selection, and what a read-only or disabled grid refuses: no edit
// starts, nothing is cut or pasted, no Change.
void tst_RdcGridAEdit::commands_data()
{
    QTest::addColumn<QString>("state"); // "", "read-only" or "disabled"
    QTest::addColumn<QKeySequence>("keys"); // none: the menu's Paste, as a disabled grid gets it
    QTest::addColumn<QRect>("selection");
    QTest::addColumn<QString>("clipboard"); // afterwards; it held "old"
    QTest::addColumn<bool>("emptied"); // the selected cells are empty afterwards
    QTest::addColumn<int>("changes");

    const QKeySequence copy(Qt::CTRL | Qt::Key_C), cut(Qt::CTRL | Qt::Key_X),
            paste(Qt::CTRL | Qt::Key_V);
    const QRect square = range(1, 1, 2, 2), one = range(1, 1, 1, 1);
    const QString copied = "1.1\t1.2\r\n2.1\t2.2\r\n";
    QTest::newRow("copy") << "" << copy << square << copied << false << 0;
    QTest::newRow("copy trims blanks, keeps empty cells")
            << "" << copy << range(3, 1, 4, 2) << "a b\t\r\n4.1\t4.2\r\n"
            << false << 0;
    QTest::newRow("cut") << "" << cut << square << copied << true << 1;
    QTest::newRow("Delete, even when read-only") << "read-only" << QKeySequence(Qt::Key_Delete)
                                                 << range(3, 1, 4, 1) << "old" << true << 1;
    QTest::newRow("read-only, cut") << "read-only" << cut << square << "old" << false << 0;
    QTest::newRow("read-only, paste") << "read-only" << paste << one << "old" << false << 0;
    QTest::newRow("read-only, F2")
            << "read-only" << QKeySequence(Qt::Key_F2) << one << "old" << false << 0;
    QTest::newRow("read-only, a digit")
            << "read-only" << QKeySequence(Qt::Key_7) << one << "old" << false << 0;
    QTest::newRow("disabled, paste") << "disabled" << QKeySequence() << one << "old" << false << 0;
}

void tst_RdcGridAEdit::commands()
{
    QFETCH(QString, state);
    QFETCH(QKeySequence, keys);
    QFETCH(QRect, selection);
    QFETCH(bool, emptied);
    GridWindow w(4, 2, QSize(200, 150));
    for (int row = 1; row <= 4; ++row)
        for (int col = 1; col <= 2; ++col)
            w.grid->setText(row, col, QStringLiteral("%1.%2").arg(row).arg(col));
    w.grid->setText(3, 1, QStringLiteral("  a b "));
    w.grid->setText(3, 2, QString());
    w.click(selection.top(), selection.left());
    w.click(selection.bottom(), selection.right(), Qt::ShiftModifier);
    w.grid->setReadOnly(state == QLatin1String("read-only"));
    w.grid->setEnabled(state != QLatin1String("disabled"));
    w.grid->setChanged(false);
    QStringList before;
    for (int row = 1; row <= 4; ++row)
        before << w.grid->Text(row, 1) << w.grid->Text(row, 2);
    QApplication::clipboard()->setText(QStringLiteral("old"));
    QSignalSpy change(w.grid, &RdcGridA::Change);
    if (keys.isEmpty())
        w.grid->PasteSelection();
    else
        QTest::keySequence(w.pic(), keys);
    QVERIFY(!w.grid->isEditing());
    QTEST(QApplication::clipboard()->text(), "clipboard");
    QTEST(int(change.count()), "changes");
    QCOMPARE(w.grid->Changed(), emptied);
    for (int row = 1; row <= 4; ++row) {
        for (int col = 1; col <= 2; ++col) {
            const QString old = before.takeFirst();
            QCOMPARE(w.grid->Text(row, col),
                     emptied && selection.contains(col, row) ? QString() : old);
        }
    }
}

// Every cell holds "old" before the paste.
void tst_RdcGridAEdit::paste_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QPoint>("target"); // (column, row)
    QTest::addColumn<QStringList>("cells"); // "row,col=text"
    QTest::addColumn<int>("changes");

    // Lines end at CR LF, LF or a lone CR; tabs, blanks and commas separate the cells.
    QTest::newRow("as copied, and from other programs")
            << "1\t2\r\n3 4\n5,6\r7" << QPoint(1, 1)
            << QStringList(
                       { "1,1=1", "1,2=2", "2,1=3", "2,2=4", "3,1=5", "3,2=6", "4,1=7", "4,2=old" })
            << 8;
    QTest::newRow("empty lines write nothing, lines past the last row are dropped")
            << "a\r\n\r\nb\r\nc" << QPoint(2, 8)
            << QStringList({ "8,2=a", "9,2=old", "10,2=b", "8,1=old" }) << 3;
}

void tst_RdcGridAEdit::paste()
{
    QFETCH(QString, clipboard);
    QFETCH(QPoint, target);
    QFETCH(QStringList, cells);
    GridWindow w(10, 2, QSize(200, 260));
    for (int row = 1; row <= 10; ++row)
        for (int col = 1; col <= 2; ++col)
            w.grid->setText(row, col, QStringLiteral("old"));
    w.grid->SetCurrentCell(target.y(), target.x());
    QApplication::clipboard()->setText(clipboard);
    QSignalSpy change(w.grid, &RdcGridA::Change);
    QTest::keyClick(w.pic(), Qt::Key_V, Qt::ControlModifier);
    QTEST(int(change.count()), "changes");
    for (const QString &cell : cells) {
        const int comma = cell.indexOf(','), equals = cell.indexOf('=');
        const int row = cell.left(comma).toInt();
        const int col = cell.mid(comma + 1, equals - comma - 1).toInt();
        QCOMPARE(w.grid->Text(row, col), cell.mid(equals + 1));
    }
}

// Clicks on the headers select whole columns or everything; a right click asks for the menu.
// (A click and a shift+click on cells make the selections of the commands test.)
void tst_RdcGridAEdit::clicks()
{
    GridWindow w(6, 3, QSize(260, 170));
    w.grid->SetCurrentCell(2, 2);
    QSignalSpy menu(w.grid, &RdcGridA::RightMouseMenu);
    QTest::mouseClick(w.pic(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5)); // the corner
    QCOMPARE(selectionOf(w.grid), range(1, 1, 6, 3));
    QCOMPARE(QPoint(w.grid->Col(), w.grid->row()), QPoint(2, 2));
    QTest::mouseClick(w.pic(), Qt::LeftButton, Qt::NoModifier, QPoint(30 + 65 + 30, 10));
    QCOMPARE(selectionOf(w.grid), range(1, 2, 6, 2));
    QCOMPARE(QPoint(w.grid->Col(), w.grid->row()), QPoint(2, 1));
    QCOMPARE(menu.count(), 0);
    QTest::mouseClick(w.pic(), Qt::RightButton, Qt::NoModifier, w.cellCentre(2, 2));
    QCOMPARE(menu.count(), 1);
}

void tst_RdcGridAEdit::dragSelectsAndAutoScrolls()
{
    GridWindow w(30, 2, QSize(200, 20 + 5 * 20 + 4));
    QTest::mousePress(w.pic(), Qt::LeftButton, Qt::NoModifier, w.cellCentre(2, 1));
    QTest::mouseMove(w.pic(), w.cellCentre(4, 2));
    QCOMPARE(selectionOf(w.grid), range(2, 1, 4, 2));
    QVERIFY(!w.timer1()->isActive());

    // Below the surface the timer takes over: each tick scrolls a row and follows with the end.
    QTest::mouseMove(w.pic(), QPoint(w.cellCentre(4, 2).x(), w.pic()->height() + 10));
    QVERIFY(w.timer1()->isActive());
    const int first = w.grid->firstVisibleRow();
    QMetaObject::invokeMethod(w.timer1(), "timeout");
    QMetaObject::invokeMethod(w.timer1(), "timeout");
    QCOMPARE(w.grid->firstVisibleRow(), first + 2);
    QCOMPARE(selectionOf(w.grid), range(2, 1, first + 2 + 4, 2));
    QTest::mouseRelease(w.pic(), Qt::LeftButton, Qt::NoModifier,
                        QPoint(10, w.pic()->height() + 10));
    QVERIFY(!w.timer1()->isActive());
    QCOMPARE(QPoint(w.grid->Col(), w.grid->row()), QPoint(1, 2));
}

QTEST_MAIN(tst_RdcGridAEdit)
#include "tst_RdcGridAEdit.moc"
