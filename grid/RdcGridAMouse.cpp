// Mouse handling of RdcGridA: selection by zone, drag selection with automatic scrolling,
// column resizing, the wheel and the right-button menu request.
#include "RdcGridA.h"

#include "GridSurface.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>

void RdcGridA::surfaceMousePress(QMouseEvent *event)
{
    m_focused = true;
    if (!m_pic->hasFocus())
        m_pic->setFocus(Qt::MouseFocusReason);
    if (event->button() != Qt::LeftButton) {
        paintSelection();
        return;
    }
    const QPoint point = event->position().toPoint();
    const int border = columnBorderAt(point.x(), point.y());
    if (border > 0)
        return startColumnResize(border, point.x());

    const bool extend = event->modifiers() & Qt::ShiftModifier;
    m_dragging = true;
    m_lastDragPoint = point;
    switch (HitZone(point.x(), point.y())) {
    case ZoneCorner:
        selectAll();
        break;
    case ZoneColumnHeader:
        selectLine(Axis::Columns, columnAt(point.x()), extend);
        break;
    case ZoneRowHeader:
        selectLine(Axis::Rows, rowAt(point.y()), extend);
        break;
    case ZoneDataCell: {
        const int row = rowAt(point.y());
        const int col = columnAt(point.x());
        if (extend) {
            // Shift+click stretches the selection from its anchor, as in a spreadsheet.
            m_selectionKind = SelectionKind::Cells;
            moveEndCorner(row, col);
        } else {
            SetCurrentCell(row, col);
        }
        MakeCellVisible(row, col);
        break;
    }
    default:
        m_dragging = false;
        break;
    }
}

// A header press selects the whole row (column): from the first to the last cell across it.
// Shift on a header of the same kind stretches the selection from its anchor line; otherwise the
// line becomes the anchor and its first visible cell the current one.
void RdcGridA::selectLine(Axis axis, int index, bool extend)
{
    const bool rows = axis == Axis::Rows;
    const SelectionKind kind = rows ? SelectionKind::Rows : SelectionKind::Columns;
    const Axis across = rows ? Axis::Columns : Axis::Rows;
    const auto place = [rows](int &row, int &col, int along, int acrossIndex) {
        (rows ? row : col) = along;
        (rows ? col : row) = acrossIndex;
    };
    if (!extend || m_selectionKind != kind) {
        place(m_anchorRow, m_anchorCol, index, 1);
        place(m_currentRow, m_currentCol, index, firstVisible(across));
    }
    m_selectionKind = kind;
    place(m_endRow, m_endCol, index, count(across));
    paintSelection();
}

void RdcGridA::surfaceMouseMove(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (m_resizing)
        return moveResizeGuide(point.x());
    if (!m_dragging || !(event->buttons() & Qt::LeftButton)) {
        const bool onBorder = columnBorderAt(point.x(), point.y()) > 0;
        m_pic->setCursor(onBorder ? Qt::SplitHCursor : Qt::ArrowCursor);
        return;
    }
    m_lastDragPoint = point;
    dragTo(point);
    // Outside the surface the selection keeps growing by itself, one row or column a tick.
    if (m_pic->rect().contains(point))
        m_timer1->stop();
    else if (!m_timer1->isActive())
        m_timer1->start();
}

void RdcGridA::surfaceMouseRelease(QMouseEvent *event)
{
    const QPoint point = event->position().toPoint();
    if (m_resizing && event->button() == Qt::LeftButton)
        finishColumnResize(point.x());
    m_dragging = false;
    m_timer1->stop();
    if (event->button() == Qt::RightButton && m_pic->rect().contains(point))
        emit RightMouseMenu();
}

void RdcGridA::surfaceWheel(QWheelEvent *event)
{
    // One notch of the wheel scrolls three rows, as list views do.
    const QPoint steps = event->angleDelta() / 120;
    if (steps.y() != 0)
        setFirstVisible(Axis::Rows, m_firstVisibleRow - 3 * steps.y());
    if (steps.x() != 0)
        setFirstVisible(Axis::Columns, m_firstVisibleCol - steps.x());
    event->accept();
}

void RdcGridA::dragTo(const QPoint &position)
{
    const int row = rowAt(position.y());
    const int col = columnAt(position.x());
    switch (m_selectionKind) {
    case SelectionKind::Cells:
        moveEndCorner(row, col);
        break;
    case SelectionKind::Rows:
        moveEndCorner(row, m_cols);
        break;
    case SelectionKind::Columns:
        moveEndCorner(m_rows, col);
        break;
    case SelectionKind::All:
        break;
    }
}

void RdcGridA::autoScrollTick()
{
    if (!m_dragging) {
        m_timer1->stop();
        return;
    }
    // A selection of whole rows grows only up and down, one of whole columns only sideways.
    for (const Axis axis : { Axis::Rows, Axis::Columns }) {
        const SelectionKind lines
                = axis == Axis::Rows ? SelectionKind::Rows : SelectionKind::Columns;
        if (m_selectionKind == SelectionKind::Cells || m_selectionKind == lines)
            autoScroll(axis, dragDirection(axis));
    }
}

int RdcGridA::dragDirection(Axis axis) const
{
    if (axis == Axis::Rows) {
        const int quadrant = GetRowNumQuadrant(m_lastDragPoint.y());
        return quadrant == QuadrantAbove ? -1 : quadrant == QuadrantBelow ? 1 : 0;
    }
    if (m_lastDragPoint.x() < 0)
        return -1;
    return m_lastDragPoint.x() > m_pic->width() - 1 ? 1 : 0;
}

// One tick scrolls one row (column) towards the pointer, while there is one to scroll to, and
// takes the selection's end corner to the row (column) that came into view.
void RdcGridA::autoScroll(Axis axis, int direction)
{
    if (direction < 0 && firstVisible(axis) >= 2) {
        setFirstVisible(axis, firstVisible(axis) - 1);
        moveEndCornerAlong(axis, firstVisible(axis));
    } else if (direction > 0 && lastFullyVisible(axis) < count(axis)) {
        setFirstVisible(axis, firstVisible(axis) + 1);
        moveEndCornerAlong(axis, lastFullyVisible(axis));
    }
}

// --- Column resizing -------------------------------------------------------------------------

void RdcGridA::startColumnResize(int col, int x)
{
    m_resizing = true;
    m_resizeColumn = col;
    m_resizeGuideX = x;
    drawResizeGuide(x);
}

void RdcGridA::moveResizeGuide(int x)
{
    drawResizeGuide(m_resizeGuideX); // drawing the inverted line again erases it
    m_resizeGuideX = x;
    drawResizeGuide(x);
}

void RdcGridA::finishColumnResize(int x)
{
    drawResizeGuide(m_resizeGuideX);
    m_resizing = false;
    m_resizeGuideX = -1;
    // The pointer's pixel becomes the column's last; 4 pixels is the narrowest column.
    const int width = std::max(4, x - columnLeft(m_resizeColumn) + 1);
    setColumnWidth(m_resizeColumn, width);
    Refresh();
}

void RdcGridA::drawResizeGuide(int x)
{
    if (x < 0 || x >= m_pic->width())
        return;
    QPainter painter(&m_pic->canvas());
    painter.setCompositionMode(QPainter::RasterOp_SourceXorDestination);
    painter.setPen(QPen(Qt::white, 1, Qt::SolidLine));
    painter.drawLine(x, 0, x, m_pic->height() - 1);
    painter.end();
    m_pic->update(QRect(x, 0, 1, m_pic->height()));
}
