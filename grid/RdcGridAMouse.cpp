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
    case ZoneColumnHeader: {
        const int col = columnAt(point.x());
        if (!extend || m_selectionKind != SelectionKind::Columns) {
            m_anchorRow = 1;
            m_anchorCol = col;
            m_currentRow = m_firstVisibleRow;
            m_currentCol = col;
        }
        m_selectionKind = SelectionKind::Columns;
        m_endRow = m_rows;
        m_endCol = col;
        paintSelection();
        break;
    }
    case ZoneRowHeader: {
        const int row = rowAt(point.y());
        if (!extend || m_selectionKind != SelectionKind::Rows) {
            m_anchorRow = row;
            m_anchorCol = 1;
            m_currentRow = row;
            m_currentCol = m_firstVisibleCol;
        }
        m_selectionKind = SelectionKind::Rows;
        m_endRow = row;
        m_endCol = m_cols;
        paintSelection();
        break;
    }
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
        setFirstVisibleRow(m_firstVisibleRow - 3 * steps.y());
    if (steps.x() != 0)
        setFirstVisibleColumn(m_firstVisibleCol - steps.x());
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
    const bool movesRows
            = m_selectionKind == SelectionKind::Cells || m_selectionKind == SelectionKind::Rows;
    const bool movesColumns
            = m_selectionKind == SelectionKind::Cells || m_selectionKind == SelectionKind::Columns;
    const int quadrant = GetRowNumQuadrant(m_lastDragPoint.y());
    if (movesRows && quadrant == QuadrantAbove && m_firstVisibleRow >= 2) {
        setFirstVisibleRow(m_firstVisibleRow - 1);
        moveEndCorner(m_firstVisibleRow, m_endCol);
    } else if (movesRows && quadrant == QuadrantBelow) {
        const int lastVisible = m_firstVisibleRow + std::max(1, fullyVisibleRowCount()) - 1;
        if (lastVisible < m_rows) {
            setFirstVisibleRow(m_firstVisibleRow + 1);
            moveEndCorner(std::min(m_rows, lastVisible + 1), m_endCol);
        }
    }
    if (movesColumns && m_lastDragPoint.x() < 0 && m_firstVisibleCol >= 2) {
        setFirstVisibleColumn(m_firstVisibleCol - 1);
        moveEndCorner(m_endRow, m_firstVisibleCol);
    } else if (movesColumns && m_lastDragPoint.x() > m_pic->width() - 1) {
        setFirstVisibleColumn(m_firstVisibleCol + 1);
        moveEndCorner(m_endRow, std::max(m_firstVisibleCol, LastFullyVisibleColumn()));
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
