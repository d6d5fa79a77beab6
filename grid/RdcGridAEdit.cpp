// Keyboard, in-place editing, selection and clipboard of RdcGridA.
#include "RdcGridA.h"

#include "GridCellEditor.h"
#include "GridSurface.h"
#include "TextParser.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include <algorithm>

namespace {
// Clipboard lines end at CR, CR LF or a lone LF (the line ending of Linux programs); a last line
// without an ending counts as well.
QStringList clipboardLines(const QString &text)
{
    QStringList lines;
    QString line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar ch = text.at(i);
        if (ch == QLatin1Char('\r') || ch == QLatin1Char('\n')) {
            lines.append(line);
            line.clear();
            if (ch == QLatin1Char('\r') && i + 1 < text.size()
                && text.at(i + 1) == QLatin1Char('\n'))
                ++i;
        } else {
            line.append(ch);
        }
    }
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

bool isSingleCell(const RdcGridA::SelectionRange &range)
{
    return range.topRow == range.bottomRow && range.leftCol == range.rightCol;
}
} // namespace

RdcGridA::SelectionRange RdcGridA::GetSelectionRange() const
{
    SelectionRange range;
    range.topRow = std::min(m_anchorRow, m_endRow);
    range.bottomRow = std::max(m_anchorRow, m_endRow);
    range.leftCol = std::min(m_anchorCol, m_endCol);
    range.rightCol = std::max(m_anchorCol, m_endCol);
    return range;
}

// --- Keyboard on the drawing surface ---------------------------------------------------------

bool RdcGridA::surfaceShortcut(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy) || event->matches(QKeySequence::Cut)
        || event->matches(QKeySequence::Paste) || event->matches(QKeySequence::SelectAll))
        return true;
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_F2:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

void RdcGridA::surfaceKeyPress(QKeyEvent *event)
{
    m_focused = true;
    const bool shift = event->modifiers() & Qt::ShiftModifier;
    const bool ctrl = event->modifiers() & Qt::ControlModifier;
    const bool alt = event->modifiers() & Qt::AltModifier;
    if (event->matches(QKeySequence::Copy))
        return CopySelection();
    if (event->matches(QKeySequence::Cut))
        return CutSelection();
    if (event->matches(QKeySequence::Paste))
        return PasteSelection();
    if (event->matches(QKeySequence::SelectAll))
        return selectAll();

    switch (event->key()) {
    case Qt::Key_Delete:
        return deleteSelection();
    case Qt::Key_F2:
        if (mayEdit())
            startEdit(withoutBlanks(storedText(m_currentRow, m_currentCol)));
        return;
    case Qt::Key_Left:
        return shift ? extendSelection(0, -1) : moveCurrentCell(0, -1);
    case Qt::Key_Right:
        return shift ? extendSelection(0, 1) : moveCurrentCell(0, 1);
    case Qt::Key_Up:
        return shift ? extendSelection(-1, 0) : moveCurrentCell(-1, 0);
    case Qt::Key_Down:
        return shift ? extendSelection(1, 0) : moveCurrentCell(1, 0);
    case Qt::Key_PageUp:
        return moveByPage(-1, shift);
    case Qt::Key_PageDown:
        return moveByPage(1, shift);
    case Qt::Key_Home:
        if (ctrl)
            jumpHome(shift);
        return;
    case Qt::Key_End:
        return jumpEnd(shift, ctrl);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return walkWithEnter();
    case Qt::Key_Space:
        if (mayEdit() && isSingleCell(GetSelectionRange()) && m_anchorRow == m_currentRow
            && m_anchorCol == m_currentCol)
            startEdit(withoutBlanks(storedText(m_currentRow, m_currentCol)));
        return;
    default:
        break;
    }

    // A typed character starts an edit with that character as the whole text. Ctrl and Alt
    // combinations are left to the window's shortcuts and mnemonics (AltGr gives both).
    const QString text = event->text();
    const bool shortcutModifier = ctrl != alt;
    if (text.size() == 1 && text.at(0).unicode() >= 33 && text.at(0).unicode() <= 127
        && !shortcutModifier && mayEdit()) {
        startEdit(text);
        return;
    }
    event->ignore(); // Tab and the rest go on to the window
}

void RdcGridA::moveCurrentCell(int rowStep, int colStep)
{
    const int row = m_currentRow + rowStep;
    const int col = m_currentCol + colStep;
    if (row < 1 || row > m_rows || col < 1 || col > m_cols)
        return;
    SetCurrentCell(row, col);
    MakeCellVisible(row, col);
}

void RdcGridA::extendSelection(int rowStep, int colStep)
{
    const int row = m_endRow + rowStep;
    const int col = m_endCol + colStep;
    if (row < 1 || row > m_rows || col < 1 || col > m_cols)
        return;
    moveEndCorner(row, col);
    MakeCellVisible(row, col);
}

void RdcGridA::moveEndCorner(int row, int col)
{
    if (row == m_endRow && col == m_endCol)
        return;
    m_endRow = row;
    m_endCol = col;
    paintSelection();
}

void RdcGridA::moveEndCornerAlong(Axis axis, int index)
{
    if (axis == Axis::Rows)
        moveEndCorner(index, m_endCol);
    else
        moveEndCorner(m_endRow, index);
}

void RdcGridA::moveByPage(int direction, bool extend)
{
    // A page is the number of rows that the surface shows whole.
    const int page = std::max(1, fullyVisibleRowCount());
    const int first = m_firstVisibleRow;
    if (direction < 0 && first < 2)
        return;
    if (direction > 0 && first >= maxFirstVisibleRow())
        return;
    setFirstVisible(Axis::Rows, first + direction * page);
    const int from = extend ? m_endRow : m_currentRow;
    const int row = std::clamp(from + direction * page, 1, std::max(1, m_rows));
    if (extend)
        moveEndCorner(row, m_endCol);
    else
        SetCurrentCell(row, m_currentCol);
    MakeCellVisible(row, extend ? m_endCol : m_currentCol);
}

void RdcGridA::jumpHome(bool extend)
{
    if (!extend)
        return Home();
    moveEndCorner(1, 1);
    MakeCellVisible(1, 1);
}

QPoint RdcGridA::lastUsedCell() const
{
    QPoint last(1, 1); // x = column, y = row
    for (int row = 1; row <= m_rows; ++row) {
        for (int col = 1; col <= m_cols; ++col) {
            if (!withoutBlanks(storedText(row, col)).isEmpty()) {
                last.setY(std::max(last.y(), row));
                last.setX(std::max(last.x(), col));
            }
        }
    }
    return last;
}

void RdcGridA::jumpEnd(bool extend, bool toLastUsedCell)
{
    // End goes to the last column of the row, Ctrl+End to the last row and column that hold
    // data, as in a spreadsheet; Shift extends the selection there instead.
    if (m_cols < 1 || m_rows < 1)
        return;
    const QPoint used = lastUsedCell();
    const int row = toLastUsedCell ? used.y() : (extend ? m_endRow : m_currentRow);
    const int col = toLastUsedCell ? used.x() : m_cols;
    if (extend)
        moveEndCorner(row, col);
    else
        SetCurrentCell(row, col);
    MakeCellVisible(row, col);
}

void RdcGridA::walkWithEnter()
{
    // Enter walks the grid row by row, left to right, as in data entry.
    MakeCellVisible(m_currentRow, m_currentCol);
    if (m_currentCol < m_cols) {
        SetCurrentCell(m_currentRow, m_currentCol + 1);
        MakeCellVisible(m_currentRow, m_currentCol);
    } else if (m_currentRow < m_rows) {
        SetCurrentCell(m_currentRow + 1, 1);
        MakeCellVisible(m_currentRow, 1);
    }
}

void RdcGridA::deleteSelection()
{
    // Delete empties the selection even on a read-only or disabled grid.
    emptyCells(GetSelectionRange());
    paintSelection();
    setDataChanged();
}

void RdcGridA::selectAll()
{
    m_anchorRow = 1;
    m_anchorCol = 1;
    m_endRow = m_rows;
    m_endCol = m_cols;
    m_selectionKind = SelectionKind::All;
    paintSelection();
}

// --- In-place editor -------------------------------------------------------------------------

bool RdcGridA::mayEdit() const
{
    return m_enabled && !m_readOnly && m_currentRow >= 1 && m_currentRow <= m_rows
            && m_currentCol >= 1 && m_currentCol <= m_cols;
}

void RdcGridA::startEdit(const QString &initialText)
{
    MakeCellVisible(m_currentRow, m_currentCol);
    m_editing = true;
    m_txt->setText(initialText); // the caret stands after the text, as in a spreadsheet
    placeEditor();
    m_txt->show();
    m_txt->setFocus(Qt::OtherFocusReason);
}

void RdcGridA::placeEditor()
{
    // The editor lies over the cell and its grid lines, framed in the highlight colour.
    const QRect cell = cellRectangle(m_currentRow, m_currentCol);
    m_txt->setGeometry(cell.left() - 1, cell.top() - 1, cell.width() + 1, cell.height() + 1);
    m_txt->setFont(m_pic->font());
    m_txt->setTextMargins(1, 0, 0, 0);
    m_txt->setStyleSheet(QStringLiteral("QLineEdit { border: 2px solid %1; background: %2; "
                                        "color: %3; padding: 0px; }")
                                 .arg(color(GridColors::Highlight).name(),
                                      GridColors::toColor(m_cellBackColor, palette()).name(),
                                      color(GridColors::WindowText).name()));
}

void RdcGridA::endEdit(EditEnd how)
{
    if (!m_editing)
        return;
    m_editing = false;
    if (how == EditEnd::Commit) {
        writeCell(m_currentRow, m_currentCol, withoutBlanks(m_txt->text()));
        emit Change(); // a committed edit raises Change a second time
    }
    // Hiding the editor moves the focus; that focus change must not end the edit again.
    m_endingEdit = true;
    if (m_txt->hasFocus())
        m_pic->setFocus(Qt::OtherFocusReason);
    m_txt->hide();
    m_endingEdit = false;
    paintSelection();
}

void RdcGridA::editorKeyPress(QKeyEvent *event)
{
    m_focused = true;
    const int key = event->key();
    endEdit(key == Qt::Key_Escape ? EditEnd::Discard : EditEnd::Commit);
    if (key == Qt::Key_Down && m_currentRow < m_rows) {
        SetCurrentCell(m_currentRow + 1, m_currentCol);
        MakeCellVisible(m_currentRow, m_currentCol);
    } else if (key == Qt::Key_Up && m_currentRow > 1) {
        SetCurrentCell(m_currentRow - 1, m_currentCol);
        MakeCellVisible(m_currentRow, m_currentCol);
    }
}

void RdcGridA::editorFocusLost(Qt::FocusReason reason)
{
    // A context menu of the editor, or another window coming to the front, leaves the edit open.
    if (m_endingEdit || !m_editing || reason == Qt::PopupFocusReason
        || reason == Qt::ActiveWindowFocusReason)
        return;
    endEdit(EditEnd::Commit);
    if (QApplication::focusWidget() != m_pic)
        loseFocusColours();
}

// --- Focus -----------------------------------------------------------------------------------

void RdcGridA::surfaceFocusChanged(bool focusIn, Qt::FocusReason reason)
{
    if (focusIn) {
        if (!m_focused) {
            m_focused = true;
            paintSelection();
        }
        return;
    }
    if (m_editing || m_endingEdit || reason == Qt::PopupFocusReason)
        return;
    loseFocusColours();
}

void RdcGridA::loseFocusColours()
{
    // Without the focus the selection and the current cell take the inactive colours.
    m_focused = false;
    paintSelection();
}

// --- Visibility and clipboard ----------------------------------------------------------------

void RdcGridA::MakeCellVisible(int row, int col)
{
    showWhole(Axis::Rows, row);
    showWhole(Axis::Columns, col);
}

void RdcGridA::CopySelection()
{
    const SelectionRange range = GetSelectionRange();
    QString text;
    for (int row = range.topRow; row <= range.bottomRow; ++row) {
        for (int col = range.leftCol; col <= range.rightCol; ++col) {
            text += withoutBlanks(storedText(row, col));
            text += col < range.rightCol ? QStringLiteral("\t") : QStringLiteral("\r\n");
        }
    }
    QClipboard *clipboard = QApplication::clipboard();
    clipboard->clear();
    clipboard->setText(text);
}

void RdcGridA::CutSelection()
{
    if (m_readOnly || !m_enabled)
        return;
    CopySelection();
    emptyCells(GetSelectionRange());
    paintSelection();
    setDataChanged();
}

void RdcGridA::PasteSelection()
{
    if (m_readOnly || !m_enabled)
        return;
    const SelectionRange range = GetSelectionRange();
    const QString text = QApplication::clipboard()->text();
    if (text.isEmpty())
        return;
    const QStringList lines = clipboardLines(text);
    clsTextParserExt parser;
    std::string token;
    for (int i = 0; i < lines.size(); ++i) {
        const int row = range.topRow + i;
        if (row > std::max(m_rows, 1))
            break; // setText ignores rows past the last: nothing more can land
        parser.setText(lines.at(i).toStdString());
        bool more = parser.GetFirstToken(token);
        for (int col = range.leftCol; more && col <= m_cols; ++col) {
            writeCell(row, col, QString::fromStdString(token));
            more = parser.GetNextToken(token);
        }
    }
    Refresh();
    setDataChanged();
}
