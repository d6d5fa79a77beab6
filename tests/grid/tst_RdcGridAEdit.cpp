#include "GridTestSupport.h"

#include <QSignalSpy>

// Working in the grid: keys, the in-place editor, the mouse and the clipboard.
class tst_RdcGridAEdit : public QObject
{
    Q_OBJECT

private slots:
    void keys_data();
    void keys();
    void pageKeys();
    void editing_data();
    void editing();
    void editorPlacementAndCaret();
    void editorUpDownMoveAfterCommit();
    void focusLossCommits();
    void copy_data();
    void copy();
    void paste_data();
    void paste();
    void refusals_data();
    void refusals();
    void cutAndDelete();
    void mouseSelection_data();
    void mouseSelection();
    void dragSelectsAndAutoScrolls();
    void rightButtonAsksForMenu();
};

using Range = RdcGridA::SelectionRange;

namespace {
// A selection as a rectangle of (column, row) corners, which QCOMPARE prints.
QRect range(int top, int left, int bottom, int right)
{
    return QRect(QPoint(left, top), QPoint(right, bottom));
}

QRect selectionOf(const RdcGridA *grid)
{
    const Range r = grid->GetSelectionRange();
    return range(r.topRow, r.leftCol, r.bottomRow, r.rightCol);
}
} // namespace

void tst_RdcGridAEdit::keys_data()
{
    QTest::addColumn<QPoint>("start"); // (column, row)
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QPoint>("current");
    QTest::addColumn<QRect>("selection");

    const Qt::KeyboardModifiers none = Qt::NoModifier, shift = Qt::ShiftModifier,
                                ctrl = Qt::ControlModifier, ctrlShift = ctrl | shift;
    QTest::newRow("Down") << QPoint(2, 2) << int(Qt::Key_Down) << none << QPoint(2, 3)
                          << range(3, 2, 3, 2);
    QTest::newRow("Shift+Down extends")
            << QPoint(2, 2) << int(Qt::Key_Down) << shift << QPoint(2, 2) << range(2, 2, 3, 2);
    QTest::newRow("Enter walks right")
            << QPoint(2, 2) << int(Qt::Key_Return) << none << QPoint(3, 2) << range(2, 3, 2, 3);
    QTest::newRow("Enter wraps to the next row")
            << QPoint(3, 2) << int(Qt::Key_Enter) << none << QPoint(1, 3) << range(3, 1, 3, 1);
    QTest::newRow("Ctrl+Shift+Home")
            << QPoint(2, 4) << int(Qt::Key_Home) << ctrlShift << QPoint(2, 4) << range(1, 1, 4, 2);
    QTest::newRow("End goes to the row's last column")
            << QPoint(1, 4) << int(Qt::Key_End) << none << QPoint(3, 4) << range(4, 3, 4, 3);
    // Data stands in (6, 1) and (2, 3): the last used row and column come from different cells.
    QTest::newRow("Ctrl+End goes to the last used cell")
            << QPoint(1, 1) << int(Qt::Key_End) << ctrl << QPoint(3, 6) << range(6, 3, 6, 3);
    QTest::newRow("Ctrl+A selects everything")
            << QPoint(2, 2) << int(Qt::Key_A) << ctrl << QPoint(2, 2) << range(1, 1, 10, 3);
}

void tst_RdcGridAEdit::keys()
{
    QFETCH(QPoint, start);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QPoint, current);
    QFETCH(QRect, selection);
    GridWindow w(10, 3, QSize(260, 260));
    w.grid->setText(6, 1, QStringLiteral("x"));
    w.grid->setText(2, 3, QStringLiteral("y"));
    w.grid->SetCurrentCell(start.y(), start.x());
    QSignalSpy change(w.grid, &RdcGridA::Change);
    QTest::keyClick(w.pic(), Qt::Key(key), modifiers);
    QCOMPARE(QPoint(w.grid->Col(), w.grid->row()), current);
    QCOMPARE(selectionOf(w.grid), selection);
    QCOMPARE(change.count(), 0);
    QVERIFY(!w.grid->isEditing());
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

void tst_RdcGridAEdit::editing_data()
{
    QTest::addColumn<QString>("startKeys"); // typed on the surface; "F2" for the F2 key
    QTest::addColumn<QString>("typed"); // typed in the editor
    QTest::addColumn<int>("endKey");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<int>("changes");

    QTest::newRow("F2 keeps the text, Enter commits") << "F2"
                                                      << "5" << int(Qt::Key_Return) << "1.25" << 2;
    QTest::newRow("a typed digit replaces the text") << "7"
                                                     << ".5" << int(Qt::Key_Return) << "7.5" << 2;
    QTest::newRow("blanks are trimmed on commit") << "F2"
                                                  << "  " << int(Qt::Key_Return) << "1.2" << 2;
    QTest::newRow("Escape stores nothing") << "9"
                                           << "9" << int(Qt::Key_Escape) << " 1.2 " << 0;
}

void tst_RdcGridAEdit::editing()
{
    QFETCH(QString, startKeys);
    QFETCH(QString, typed);
    QFETCH(int, endKey);
    QFETCH(QString, expected);
    QFETCH(int, changes);
    GridWindow w(5, 2, QSize(200, 150));
    w.grid->setText(2, 2, QStringLiteral(" 1.2 "));
    w.click(2, 2);
    QSignalSpy change(w.grid, &RdcGridA::Change);
    if (startKeys == QLatin1String("F2"))
        QTest::keyClick(w.pic(), Qt::Key_F2);
    else
        QTest::keyClicks(w.pic(), startKeys);
    QVERIFY(w.grid->isEditing());
    QVERIFY(w.txt()->isVisible());
    QTest::keyClicks(w.txt(), typed);
    QTest::keyClick(w.txt(), Qt::Key(endKey));
    QVERIFY(!w.grid->isEditing());
    QVERIFY(!w.txt()->isVisible());
    QCOMPARE(w.grid->Text(2, 2), expected);
    QCOMPARE(change.count(), changes);
    QCOMPARE(QPoint(w.grid->Col(), w.grid->row()), QPoint(2, 2)); // Enter stays on the cell
}

void tst_RdcGridAEdit::editorPlacementAndCaret()
{
    GridWindow w(5, 2, QSize(200, 150));
    w.grid->setText(3, 1, QStringLiteral("  42  "));
    w.grid->SetCurrentCell(3, 1);
    QTest::keyClick(w.pic(), Qt::Key_F2);
    const QRect cell = w.grid->cellRectangle(3, 1);
    QVERIFY(w.txt()->geometry().contains(cell.adjusted(0, 0, -1, -1)));
    QVERIFY(w.txt()->geometry().width() <= cell.width() + 2);
    QCOMPARE(w.txt()->text(), QStringLiteral("42"));
    QCOMPARE(w.txt()->cursorPosition(), 2);
    QVERIFY(!w.txt()->hasSelectedText());
    QTest::keyClick(w.txt(), Qt::Key_Escape);
}

void tst_RdcGridAEdit::editorUpDownMoveAfterCommit()
{
    GridWindow w(5, 2, QSize(200, 150));
    w.grid->SetCurrentCell(2, 1);
    QSignalSpy change(w.grid, &RdcGridA::Change);
    QTest::keyClicks(w.pic(), QStringLiteral("3"));
    QTest::keyClick(w.txt(), Qt::Key_Down);
    QCOMPARE(w.grid->Text(2, 1), QStringLiteral("3"));
    QCOMPARE(w.grid->row(), 3);
    QTest::keyClicks(w.pic(), QStringLiteral("4"));
    QTest::keyClick(w.txt(), Qt::Key_Up);
    QCOMPARE(w.grid->Text(3, 1), QStringLiteral("4"));
    QCOMPARE(w.grid->row(), 2);
    QCOMPARE(change.count(), 4);
}

void tst_RdcGridAEdit::focusLossCommits()
{
    GridWindow w(5, 2, QSize(200, 150));
    QVERIFY(w.active);
    w.click(1, 2);
    QSignalSpy change(w.grid, &RdcGridA::Change);
    QTest::keyClicks(w.pic(), QStringLiteral("1"));
    QVERIFY(w.txt()->hasFocus());
    QTest::keyClicks(w.txt(), QStringLiteral("2"));
    w.other->setFocus(Qt::TabFocusReason);
    QVERIFY(!w.grid->isEditing());
    QCOMPARE(w.grid->Text(1, 2), QStringLiteral("12"));
    QCOMPARE(change.count(), 2);
    QVERIFY(w.other->hasFocus()); // the focus stays where the user sent it
}

void tst_RdcGridAEdit::copy_data()
{
    QTest::addColumn<QRect>("selection");
    QTest::addColumn<QString>("expected");
    QTest::newRow("2 x 2") << range(1, 1, 2, 2) << "1\t2\r\n3\t4\r\n";
    QTest::newRow("one cell") << range(2, 2, 2, 2) << "4\r\n";
    QTest::newRow("blanks trimmed, empty cells kept") << range(3, 1, 4, 2) << "a b\t\r\n\t\r\n";
}

void tst_RdcGridAEdit::copy()
{
    QFETCH(QRect, selection);
    QFETCH(QString, expected);
    GridWindow w(4, 2, QSize(200, 150));
    w.grid->setText(1, 1, QStringLiteral("1"));
    w.grid->setText(1, 2, QStringLiteral("2"));
    w.grid->setText(2, 1, QStringLiteral("3"));
    w.grid->setText(2, 2, QStringLiteral("4"));
    w.grid->setText(3, 1, QStringLiteral("  a b "));
    w.click(selection.top(), selection.left());
    w.click(selection.bottom(), selection.right(), Qt::ShiftModifier);
    QApplication::clipboard()->setText(QStringLiteral("old"));
    QTest::keyClick(w.pic(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), expected);
}

void tst_RdcGridAEdit::paste_data()
{
    QTest::addColumn<QString>("clipboard");
    QTest::addColumn<QPoint>("target"); // (column, row)
    QTest::addColumn<QStringList>("cells"); // "row,col=text"
    QTest::addColumn<int>("changes");

    QTest::newRow("blank and comma separate")
            << "1.5 20\r\n3,40" << QPoint(1, 1)
            << QStringList({ "1,1=1.5", "1,2=20", "2,1=3", "2,2=40" }) << 5;
    QTest::newRow("tabs and CR LF, as copied")
            << "1\t2\r\n3\t4\r\n"
            << QPoint(1, 2) << QStringList({ "2,1=1", "2,2=2", "3,1=3", "3,2=4" }) << 5;
    QTest::newRow("LF line ends") << "5\t6\n7\t8\n"
                                  << QPoint(1, 1)
                                  << QStringList({ "1,1=5", "1,2=6", "2,1=7", "2,2=8" }) << 5;
    QTest::newRow("CR alone ends a line")
            << "1\r2" << QPoint(2, 1) << QStringList({ "1,2=1", "2,2=2", "1,1=" }) << 3;
    QTest::newRow("lines past the last row dropped")
            << "a\r\nb\r\nc" << QPoint(1, 9) << QStringList({ "9,1=a", "10,1=b" }) << 3;
    QTest::newRow("an empty line writes nothing")
            << "1\r\n\r\n3" << QPoint(1, 1) << QStringList({ "1,1=1", "2,1=old", "3,1=3" }) << 3;
}

void tst_RdcGridAEdit::paste()
{
    QFETCH(QString, clipboard);
    QFETCH(QPoint, target);
    QFETCH(QStringList, cells);
    QFETCH(int, changes);
    GridWindow w(10, 2, QSize(200, 260));
    for (int row = 1; row <= 10; ++row)
        w.grid->setText(row, 1, QStringLiteral("old"));
    for (int row = 1; row <= 10; ++row)
        w.grid->setText(row, 2, QString());
    w.grid->setText(1, 1, QString());
    w.grid->SetCurrentCell(target.y(), target.x());
    QApplication::clipboard()->setText(clipboard);
    QSignalSpy change(w.grid, &RdcGridA::Change);
    QTest::keyClick(w.pic(), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(change.count(), changes);
    for (const QString &cell : cells) {
        const int comma = cell.indexOf(','), equals = cell.indexOf('=');
        const int row = cell.left(comma).toInt();
        const int col = cell.mid(comma + 1, equals - comma - 1).toInt();
        QCOMPARE(w.grid->Text(row, col), cell.mid(equals + 1));
    }
}

// A read-only or disabled grid keeps its cells: no edit starts, nothing is pasted or cut.
void tst_RdcGridAEdit::refusals_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<int>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("read-only, F2") << true << int(Qt::Key_F2) << Qt::KeyboardModifiers();
    QTest::newRow("read-only, a digit") << true << int(Qt::Key_7) << Qt::KeyboardModifiers();
    QTest::newRow("read-only, paste")
            << true << int(Qt::Key_V) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("read-only, cut")
            << true << int(Qt::Key_X) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("disabled, paste")
            << false << int(Qt::Key_V) << Qt::KeyboardModifiers(Qt::ControlModifier);
}

void tst_RdcGridAEdit::refusals()
{
    QFETCH(bool, readOnly);
    QFETCH(int, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    GridWindow w(4, 2, QSize(200, 150));
    w.grid->setText(1, 1, QStringLiteral("0"));
    w.grid->SetCurrentCell(1, 1);
    w.grid->setReadOnly(readOnly);
    w.grid->setEnabled(readOnly);
    QApplication::clipboard()->setText(QStringLiteral("1 2"));
    QSignalSpy change(w.grid, &RdcGridA::Change);
    QTest::keyClick(w.pic(), Qt::Key(key), modifiers);
    if (!readOnly)
        w.grid->PasteSelection(); // a disabled grid takes no keys; the menu calls this directly
    QVERIFY(!w.grid->isEditing());
    QCOMPARE(w.grid->Text(1, 1), QStringLiteral("0"));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1 2"));
    QCOMPARE(change.count(), 0);
}

void tst_RdcGridAEdit::cutAndDelete()
{
    GridWindow w(4, 2, QSize(200, 150));
    w.fill(4, 2);
    w.click(1, 1);
    w.click(2, 2, Qt::ShiftModifier);
    QSignalSpy change(w.grid, &RdcGridA::Change);

    QTest::keyClick(w.pic(), Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.1\t1.2\r\n2.1\t2.2\r\n"));
    QCOMPARE(w.grid->Text(2, 2), QString());
    QCOMPARE(w.grid->Text(3, 1), QStringLiteral("3.1"));
    QCOMPARE(change.count(), 1);

    // Delete empties the selection even on a read-only grid.
    w.grid->setReadOnly(true);
    w.grid->setChanged(false);
    w.click(3, 1);
    w.click(4, 1, Qt::ShiftModifier);
    QTest::keyClick(w.pic(), Qt::Key_Delete);
    QCOMPARE(w.grid->Text(3, 1), QString());
    QCOMPARE(w.grid->Text(4, 1), QString());
    QCOMPARE(w.grid->Text(4, 2), QStringLiteral("4.2"));
    QCOMPARE(change.count(), 2);
    QVERIFY(w.grid->Changed());
}

void tst_RdcGridAEdit::mouseSelection_data()
{
    QTest::addColumn<QPoint>("point"); // surface point; (-r, -c) stands for the centre of cell
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<QRect>("selection");
    QTest::addColumn<QPoint>("current"); // (column, row)

    QTest::newRow("corner selects all")
            << QPoint(5, 5) << Qt::KeyboardModifiers() << range(1, 1, 6, 3) << QPoint(2, 2);
    QTest::newRow("column header") << QPoint(30 + 65 + 30, 10) << Qt::KeyboardModifiers()
                                   << range(1, 2, 6, 2) << QPoint(2, 1);
    QTest::newRow("data cell") << QPoint(-5, -3) << Qt::KeyboardModifiers() << range(5, 3, 5, 3)
                               << QPoint(3, 5);
    QTest::newRow("shift+click extends")
            << QPoint(-5, -3) << Qt::KeyboardModifiers(Qt::ShiftModifier) << range(2, 2, 5, 3)
            << QPoint(2, 2);
}

void tst_RdcGridAEdit::mouseSelection()
{
    QFETCH(QPoint, point);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QFETCH(QRect, selection);
    QFETCH(QPoint, current);
    GridWindow w(6, 3, QSize(260, 170));
    w.grid->SetCurrentCell(2, 2);
    if (point.x() < 0)
        point = w.cellCentre(-point.x(), -point.y());
    QTest::mouseClick(w.pic(), Qt::LeftButton, modifiers, point);
    QCOMPARE(selectionOf(w.grid), selection);
    QCOMPARE(QPoint(w.grid->Col(), w.grid->row()), current);
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
    QCOMPARE(w.timer1()->interval(), 50);
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

void tst_RdcGridAEdit::rightButtonAsksForMenu()
{
    GridWindow w(4, 2, QSize(200, 150));
    QSignalSpy menu(w.grid, &RdcGridA::RightMouseMenu);
    QTest::mouseClick(w.pic(), Qt::RightButton, Qt::NoModifier, w.cellCentre(2, 2));
    QCOMPARE(menu.count(), 1);
    QTest::mouseClick(w.pic(), Qt::LeftButton, Qt::NoModifier, w.cellCentre(2, 2));
    QCOMPARE(menu.count(), 1);
}

QTEST_MAIN(tst_RdcGridAEdit)
#include "tst_RdcGridAEdit.moc"
