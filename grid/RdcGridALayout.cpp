// Geometry of RdcGridA: layout of the children, zone rectangles, visibility, scrolling and
// text metrics.
#include "RdcGridA.h"

#include "GridSurface.h"

#include <QFontMetrics>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>

// --- Layout ----------------------------------------------------------------------------------

void RdcGridA::ProportionGrid()
{
    int top = 0;
    if (m_titleVisible) {
        m_titleBar->setGeometry(0, 0, width(), m_titleHeight);
        top = m_titleHeight;
    }
    const int availableWidth = std::max(0, width());
    const int availableHeight = std::max(0, height() - top);
    const int contentWidth = OptimumWidth();
    const int contentHeight = m_headerRowHeight + m_rows * m_dataRowHeight;
    const int barWidth = m_vsc->sizeHint().width();
    const int barHeight = m_hsc->sizeHint().height();

    // Each bar takes room from the other direction, so the first test is repeated once the
    // other bar has appeared.
    bool horizontal = contentWidth > availableWidth;
    const bool vertical = contentHeight > availableHeight - (horizontal ? barHeight : 0);
    if (vertical && !horizontal)
        horizontal = contentWidth > availableWidth - barWidth;

    const int surfaceWidth = std::max(0, availableWidth - (vertical ? barWidth : 0));
    const int surfaceHeight = std::max(0, availableHeight - (horizontal ? barHeight : 0));
    m_pic->setGeometry(0, top, surfaceWidth, surfaceHeight);
    m_vsc->setGeometry(surfaceWidth, top, barWidth, surfaceHeight);
    m_hsc->setGeometry(0, top + surfaceHeight, surfaceWidth, barHeight);
    m_vsc->setVisible(vertical);
    m_hsc->setVisible(horizontal);

    const int right = surfaceWidth - 1;
    const int bottom = surfaceHeight - 1;
    const int headerWidth = widthOf(0);
    m_cornerZone = QRect(QPoint(0, 0), QPoint(headerWidth, m_headerRowHeight));
    m_columnHeaderZone = QRect(QPoint(headerWidth, 0), QPoint(right, m_headerRowHeight));
    m_rowHeaderZone = QRect(QPoint(0, m_headerRowHeight), QPoint(headerWidth, bottom));
    m_dataZone = QRect(QPoint(headerWidth, m_headerRowHeight), QPoint(right, bottom));

    // Without its bar a direction shows from its first row (column); a page step of the
    // vertical bar is the rows shown whole, of the horizontal bar one column.
    for (const Axis axis : { Axis::Rows, Axis::Columns }) {
        const bool barShown = axis == Axis::Rows ? vertical : horizontal;
        int &first = axis == Axis::Rows ? m_firstVisibleRow : m_firstVisibleCol;
        first = std::clamp(barShown ? first : 1, 1, maxFirstVisible(axis));
        QScrollBar *bar = scrollBar(axis);
        const QSignalBlocker block(bar);
        bar->setRange(1, maxFirstVisible(axis));
        bar->setPageStep(axis == Axis::Rows ? std::max(1, fullyVisibleRowCount()) : 1);
        bar->setValue(first);
    }
    if (m_editing)
        placeEditor();
}

int RdcGridA::widthOf(int col) const
{
    return m_columnWidths.contains(col) ? std::max(0, m_columnWidths.at(col)) : 0;
}

int RdcGridA::columnLeft(int col) const
{
    int left = widthOf(0);
    for (int c = m_firstVisibleCol; c < col; ++c)
        left += widthOf(c);
    for (int c = col; c < m_firstVisibleCol; ++c)
        left -= widthOf(c); // a column scrolled out to the left lies before the row headers
    return left;
}

int RdcGridA::rowTop(int row) const
{
    return m_headerRowHeight + (row - m_firstVisibleRow) * m_dataRowHeight;
}

QRect RdcGridA::cellRectangle(int row, int col) const
{
    const int left = columnLeft(col);
    const int top = rowTop(row);
    return QRect(QPoint(left, top), QPoint(left + widthOf(col) - 1, top + m_dataRowHeight - 1));
}

QRect RdcGridA::GetColumnHeaderRectangle(int col) const
{
    const int left = columnLeft(col);
    return QRect(QPoint(left, 0), QPoint(left + widthOf(col) - 1, m_headerRowHeight - 1));
}

int RdcGridA::firstVisible(Axis axis) const
{
    return axis == Axis::Rows ? m_firstVisibleRow : m_firstVisibleCol;
}

QScrollBar *RdcGridA::scrollBar(Axis axis) const
{
    return axis == Axis::Rows ? m_vsc : m_hsc;
}

int RdcGridA::cellStart(Axis axis, int index) const
{
    return axis == Axis::Rows ? rowTop(index) : columnLeft(index);
}

int RdcGridA::cellExtent(Axis axis, int index) const
{
    return axis == Axis::Rows ? m_dataRowHeight : widthOf(index);
}

int RdcGridA::dataZoneEnd(Axis axis) const
{
    return axis == Axis::Rows ? m_dataZone.bottom() : m_dataZone.right();
}

int RdcGridA::visibility(Axis axis, int index) const
{
    if (index < firstVisible(axis) || index < 1 || index > count(axis))
        return NotVisible;
    const int start = cellStart(axis, index);
    if (start > dataZoneEnd(axis))
        return NotVisible;
    return start + cellExtent(axis, index) - 1 <= dataZoneEnd(axis) ? FullyVisible : PartlyVisible;
}

int RdcGridA::IsCellVisible(int row, int col) const
{
    const int rowCode = visibility(Axis::Rows, row);
    if (rowCode == NotVisible)
        return NotVisible;
    const int colCode = visibility(Axis::Columns, col);
    if (colCode == NotVisible)
        return NotVisible;
    return rowCode == FullyVisible && colCode == FullyVisible ? FullyVisible : PartlyVisible;
}

int RdcGridA::fullyVisibleRowCount() const
{
    if (m_dataRowHeight <= 0)
        return m_rows;
    return std::max(0, (m_dataZone.bottom() - m_headerRowHeight + 1) / m_dataRowHeight);
}

int RdcGridA::maxFirstVisible(Axis axis) const
{
    return axis == Axis::Rows ? maxFirstVisibleRow() : maxFirstVisibleColumn();
}

int RdcGridA::maxFirstVisibleRow() const
{
    return std::max(1, m_rows - std::max(1, fullyVisibleRowCount()) + 1);
}

int RdcGridA::maxFirstVisibleColumn() const
{
    const int space = m_dataZone.right() - widthOf(0) + 1;
    int used = 0;
    int first = m_cols;
    while (first >= 1 && used + widthOf(first) <= space) {
        used += widthOf(first);
        --first;
    }
    // first is now the column that did not fit; at least the last column gets a place.
    return std::clamp(first + 1, 1, std::max(1, m_cols));
}

// Rows are all as high, so the count of whole rows gives the first; columns are counted back
// from `index` while their widths fit.
int RdcGridA::firstVisibleEndingAt(Axis axis, int index) const
{
    if (axis == Axis::Rows)
        return index - std::max(1, fullyVisibleRowCount()) + 1;
    const int space = m_dataZone.right() - widthOf(0) + 1;
    int first = index;
    int used = widthOf(index);
    while (first > 1 && used + widthOf(first - 1) <= space)
        used += widthOf(--first);
    return first;
}

int RdcGridA::lastFullyVisible(Axis axis) const
{
    if (axis == Axis::Rows)
        return m_firstVisibleRow + std::max(1, fullyVisibleRowCount()) - 1;
    return std::max(m_firstVisibleCol, LastFullyVisibleColumn());
}

int RdcGridA::LastFullyVisibleColumn() const
{
    int last = m_firstVisibleCol - 1;
    for (int col = m_firstVisibleCol; col <= m_cols; ++col) {
        if (columnLeft(col) + widthOf(col) - 1 > m_dataZone.right())
            break;
        last = col;
    }
    return last;
}

int RdcGridA::GetRowNumQuadrant(int y) const
{
    if (y < 0)
        return QuadrantAbove;
    if (y > m_pic->height() - 1)
        return QuadrantBelow;
    return QuadrantInside;
}

int RdcGridA::HitZone(int x, int y) const
{
    const QPoint point(x, y);
    if (m_dataZone.contains(point))
        return ZoneDataCell;
    if (m_cornerZone.contains(point))
        return ZoneCorner;
    if (m_columnHeaderZone.contains(point))
        return ZoneColumnHeader;
    if (m_rowHeaderZone.contains(point))
        return ZoneRowHeader;
    return ZoneNone;
}

int RdcGridA::rowAt(int y) const
{
    const int lastVisible = std::max(m_firstVisibleRow,
                                     std::min(m_rows, m_firstVisibleRow + fullyVisibleRowCount()));
    if (m_dataRowHeight <= 0 || y < m_headerRowHeight)
        return m_firstVisibleRow;
    return std::clamp(m_firstVisibleRow + (y - m_headerRowHeight) / m_dataRowHeight,
                      m_firstVisibleRow, lastVisible);
}

int RdcGridA::columnAt(int x) const
{
    int col = m_firstVisibleCol;
    int right = widthOf(0) + widthOf(col) - 1;
    while (x > right && col < m_cols && right < m_dataZone.right()) {
        ++col;
        right += widthOf(col);
    }
    return col;
}

int RdcGridA::columnBorderAt(int x, int y) const
{
    // A press within this many pixels of a header's right border starts a column resize.
    constexpr int kBand = 3;
    if (y < 0 || y >= m_headerRowHeight)
        return 0;
    for (int col = m_firstVisibleCol; col <= m_cols; ++col) {
        const int right = columnLeft(col) + widthOf(col) - 1;
        if (right - kBand > m_dataZone.right())
            break;
        if (std::abs(x - right) <= kBand)
            return col;
    }
    return 0;
}

void RdcGridA::setFirstVisible(Axis axis, int first)
{
    first = std::clamp(first, 1, maxFirstVisible(axis));
    if (m_editing && !m_endingEdit && first != firstVisible(axis))
        endEdit(EditEnd::Commit);
    (axis == Axis::Rows ? m_firstVisibleRow : m_firstVisibleCol) = first;
    {
        const QSignalBlocker block(scrollBar(axis));
        scrollBar(axis)->setValue(first);
    }
    paintSurface();
}

void RdcGridA::showWhole(Axis axis, int index)
{
    if (index < 1 || index > count(axis) || visibility(axis, index) == FullyVisible)
        return;
    setFirstVisible(axis, index < firstVisible(axis) ? index : firstVisibleEndingAt(axis, index));
}

QStringList RdcGridA::textLines(const QString &text)
{
    QString unified = text;
    unified.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    unified.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return unified.split(QLatin1Char('\n'));
}

// --- Text metrics --------------------------------------------------------------------------

int RdcGridA::TextHeight(const QString &text) const
{
    const QFontMetrics metrics(m_pic->font());
    return static_cast<int>(textLines(text).size()) * metrics.height();
}

int RdcGridA::TextWidth(const QString &text) const
{
    const QFontMetrics metrics(m_pic->font());
    int widest = 0;
    for (const QString &line : textLines(text))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}
