// Geometry and painting of RdcGridA: layout, zones, visibility, cells and headers.
#include "RdcGridA.h"

#include "GridCellEditor.h"
#include "GridSurface.h"

#include <QFontMetrics>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace {
// Halves round to the even pixel, as the classic integer rounding of the layout did.
int roundHalfEven(double value)
{
    return static_cast<int>(std::nearbyint(value));
}

QStringList captionLines(const QString &text)
{
    QString unified = text;
    unified.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    unified.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return unified.split(QLatin1Char('\n'));
}

// x of a text of width w in a cell from left to right (right = the grid-line pixel).
int alignedLeft(int alignment, int left, int right, int w)
{
    switch (alignment) {
    case RdcGridA::AlignRight:
        return right - w - 2;
    case RdcGridA::AlignCentre:
        return left + roundHalfEven((right - left - w) / 2.0);
    case RdcGridA::AlignLeft:
    default:
        return left + 2;
    }
}
} // namespace

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

    if (!horizontal)
        m_firstVisibleCol = 1;
    if (!vertical)
        m_firstVisibleRow = 1;
    m_firstVisibleRow = std::clamp(m_firstVisibleRow, 1, maxFirstVisibleRow());
    m_firstVisibleCol = std::clamp(m_firstVisibleCol, 1, maxFirstVisibleColumn());
    const QSignalBlocker blockRows(m_vsc);
    const QSignalBlocker blockColumns(m_hsc);
    m_vsc->setRange(1, maxFirstVisibleRow());
    m_vsc->setPageStep(std::max(1, fullyVisibleRowCount()));
    m_vsc->setValue(m_firstVisibleRow);
    m_hsc->setRange(1, maxFirstVisibleColumn());
    m_hsc->setPageStep(1);
    m_hsc->setValue(m_firstVisibleCol);
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

int RdcGridA::rowVisibility(int row) const
{
    if (row < m_firstVisibleRow || row < 1 || row > m_rows)
        return NotVisible;
    const int top = rowTop(row);
    if (top > m_dataZone.bottom())
        return NotVisible;
    return top + m_dataRowHeight - 1 <= m_dataZone.bottom() ? FullyVisible : PartlyVisible;
}

int RdcGridA::columnVisibility(int col) const
{
    if (col < m_firstVisibleCol || col < 1 || col > m_cols)
        return NotVisible;
    const int left = columnLeft(col);
    if (left > m_dataZone.right())
        return NotVisible;
    return left + widthOf(col) - 1 <= m_dataZone.right() ? FullyVisible : PartlyVisible;
}

int RdcGridA::IsCellVisible(int row, int col) const
{
    const int rowCode = rowVisibility(row);
    if (rowCode == NotVisible)
        return NotVisible;
    const int colCode = columnVisibility(col);
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

void RdcGridA::setFirstVisibleRow(int row)
{
    row = std::clamp(row, 1, maxFirstVisibleRow());
    if (m_editing && !m_endingEdit && row != m_firstVisibleRow)
        endEdit(EditEnd::Commit);
    m_firstVisibleRow = row;
    {
        const QSignalBlocker block(m_vsc);
        m_vsc->setValue(row);
    }
    paintSurface();
}

void RdcGridA::setFirstVisibleColumn(int col)
{
    col = std::clamp(col, 1, maxFirstVisibleColumn());
    if (m_editing && !m_endingEdit && col != m_firstVisibleCol)
        endEdit(EditEnd::Commit);
    m_firstVisibleCol = col;
    {
        const QSignalBlocker block(m_hsc);
        m_hsc->setValue(col);
    }
    paintSurface();
}

// --- Text metrics --------------------------------------------------------------------------

int RdcGridA::TextHeight(const QString &text) const
{
    const QFontMetrics metrics(m_pic->font());
    return static_cast<int>(captionLines(text).size()) * metrics.height();
}

int RdcGridA::TextWidth(const QString &text) const
{
    const QFontMetrics metrics(m_pic->font());
    int widest = 0;
    for (const QString &line : captionLines(text))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

// --- Painting ------------------------------------------------------------------------------

bool RdcGridA::paintsEnabled() const
{
    return m_enabled && QWidget::isEnabled();
}

QColor RdcGridA::color(int systemColorIndex) const
{
    return GridColors::systemColor(systemColorIndex, palette());
}

int RdcGridA::cellMode(int row, int col) const
{
    if (row == m_currentRow && col == m_currentCol)
        return MarkedCurrentCell;
    const SelectionRange range = GetSelectionRange();
    const bool single = range.topRow == range.bottomRow && range.leftCol == range.rightCol;
    if (!single && row >= range.topRow && row <= range.bottomRow && col >= range.leftCol
        && col <= range.rightCol)
        return SelectedCell;
    return PlainCell;
}

void RdcGridA::paintSurface()
{
    QImage &canvas = m_pic->canvas();
    m_pic->takeCanvasReset();
    QPainter painter(&canvas);
    painter.setFont(m_pic->font());
    painter.fillRect(QRect(QPoint(0, 0), m_pic->size()), GridColors::toColor(m_backColor, palette()));
    paintCorner(painter);
    paintColumnHeaders(painter);
    paintRowHeadersWith(painter);
    paintDataCellsWith(painter);
    painter.end();
    if (m_resizing)
        drawResizeGuide(m_resizeGuideX);
    m_pic->update();
}

void RdcGridA::paintSelection()
{
    paintSurface();
}

void RdcGridA::PaintRowHeaders()
{
    QPainter painter(&m_pic->canvas());
    painter.setFont(m_pic->font());
    paintRowHeadersWith(painter);
    m_pic->update(m_rowHeaderZone);
}

void RdcGridA::PaintDataCells()
{
    QPainter painter(&m_pic->canvas());
    painter.setFont(m_pic->font());
    paintDataCellsWith(painter);
    m_pic->update(m_dataZone);
}

void RdcGridA::paintDataCellsWith(QPainter &painter)
{
    // Each cell leaves its last pixel column and row unfilled: what shows there is the grid line.
    const int lastRow = std::min(m_rows, m_firstVisibleRow + fullyVisibleRowCount());
    const int lastCol = std::max(m_firstVisibleCol, LastFullyVisibleColumn() + 1);
    if (m_rows >= 1 && m_cols >= 1) {
        const QRect block(cellRectangle(m_firstVisibleRow, m_firstVisibleCol).topLeft(),
                          cellRectangle(lastRow, std::min(lastCol, m_cols)).bottomRight());
        const QColor line = GridColors::blend(color(GridColors::WindowBackground),
                                              color(GridColors::ButtonShadow), 0.45);
        painter.fillRect(block.intersected(m_dataZone), line);
    }
    for (int row = m_firstVisibleRow; rowVisibility(row) != NotVisible; ++row) {
        for (int col = m_firstVisibleCol; columnVisibility(col) != NotVisible; ++col)
            paintCellWith(painter, row, col, cellMode(row, col));
    }
    paintSelectionFrame(painter);
}

void RdcGridA::PaintCell(int row, int col, int mode)
{
    if (IsCellVisible(row, col) == NotVisible)
        return;
    QPainter painter(&m_pic->canvas());
    painter.setFont(m_pic->font());
    paintCellWith(painter, row, col, mode);
    if (cellMode(row, col) == SelectedCell)
        paintSelectionFrame(painter); // the cell may carry a piece of the frame
    m_pic->update(cellRectangle(row, col).adjusted(-2, -2, 2, 2));
}

void RdcGridA::paintCellWith(QPainter &painter, int row, int col, int mode)
{
    if (IsCellVisible(row, col) == NotVisible)
        return;
    using namespace GridColors;
    // Fill and text colours by mode and state. A selected cell of a focused grid is the
    // inverse of the current cell, so the current cell stands out inside its selection.
    int fill = WindowBackground;
    int ink = WindowText;
    if (!paintsEnabled()) {
        fill = mode == PlainCell ? ButtonFace : GrayText;
        ink = mode == PlainCell ? GrayText : ButtonFace;
    } else if (mode == SelectedCell || mode == MarkedCurrentCell) {
        if (!m_focused) {
            fill = WindowText;
            ink = WindowBackground;
        } else if (mode == SelectedCell) {
            fill = HighlightText;
            ink = Highlight;
        } else {
            fill = Highlight;
            ink = HighlightText;
        }
    }
    const QRect cell = cellRectangle(row, col);
    painter.fillRect(QRect(cell.topLeft(), cell.bottomRight() - QPoint(1, 1)), color(fill));

    const QString text = withoutBlanks(storedText(row, col));
    if (text.isEmpty())
        return;
    const int w = TextWidth(text);
    const int h = TextHeight(text);
    int alignment = m_columnAlignments.contains(col) ? m_columnAlignments.at(col) : 0;
    if (alignment == AlignDefault)
        alignment = m_defaultDataAlign;
    const int x = alignedLeft(alignment, cell.left(), cell.right(), w);
    const int y = cell.top() + roundHalfEven((m_dataRowHeight - h) / 2.0);
    // Text wider than its cell is cut 2 pixels inside the cell's left and right edges.
    painter.save();
    painter.setClipRect(QRect(QPoint(cell.left() + 2, cell.top()),
                              QPoint(cell.right() - 3, cell.bottom())));
    painter.setPen(color(ink));
    painter.drawText(x, y + QFontMetrics(painter.font()).ascent(), text);
    painter.restore();
}

void RdcGridA::paintCorner(QPainter &painter)
{
    const QRect corner(QPoint(0, 0), QPoint(widthOf(0) - 1, m_headerRowHeight - 1));
    painter.fillRect(corner, color(GridColors::ButtonFace));
    painter.setPen(color(GridColors::DarkShadow3D));
    painter.drawLine(corner.topRight(), corner.bottomRight());
    painter.drawLine(corner.bottomLeft(), corner.bottomRight());
}

void RdcGridA::paintColumnHeaders(QPainter &painter)
{
    const SelectionRange range = GetSelectionRange();
    for (int col = m_firstVisibleCol; columnVisibility(col) != NotVisible; ++col) {
        const bool selected = col >= range.leftCol && col <= range.rightCol;
        paintHeaderCell(painter, GetColumnHeaderRectangle(col), headerCaptionLines(col),
                        AlignCentre, selected, m_boldColumnHeaders);
    }
}

void RdcGridA::paintRowHeadersWith(QPainter &painter)
{
    const SelectionRange range = GetSelectionRange();
    for (int row = m_firstVisibleRow; rowVisibility(row) != NotVisible; ++row) {
        const QRect rect(QPoint(0, rowTop(row)),
                         QPoint(widthOf(0) - 1, rowTop(row) + m_dataRowHeight - 1));
        const bool selected = row >= range.topRow && row <= range.bottomRow;
        paintHeaderCell(painter, rect, QStringList(QString::number(row)), m_rowLabelAlign,
                        selected, false);
    }
}

QFont RdcGridA::headerFont(bool bold) const
{
    QFont font = m_pic->font();
    font.setBold(bold);
    return font;
}

QStringList RdcGridA::fittedCaptionLines(const QString &caption, bool bold) const
{
    const QStringList lines = captionLines(withoutBlanks(caption));
    // A caption of several lines that the header row cannot hold is shown on one line.
    if (static_cast<int>(lines.size()) * QFontMetrics(headerFont(bold)).height() > m_headerRowHeight)
        return QStringList(lines.join(QLatin1Char(' ')));
    return lines;
}

QStringList RdcGridA::headerCaptionLines(int col) const
{
    return fittedCaptionLines(storedText(0, col), m_boldColumnHeaders);
}

int RdcGridA::headerCaptionWidth(int col) const
{
    const QFontMetrics metrics(headerFont(m_boldColumnHeaders));
    int widest = 0;
    for (const QString &line : headerCaptionLines(col))
        widest = std::max(widest, metrics.horizontalAdvance(line));
    return widest;
}

void RdcGridA::paintHeaderCell(QPainter &painter, const QRect &rect, const QStringList &lines,
                               int alignment, bool selected, bool bold)
{
    if (rect.width() <= 0 || rect.height() <= 0)
        return;
    // Headers of the selected rows and columns take a tint of the highlight, as in a spreadsheet.
    QColor fill = GridColors::toColor(m_backColor, palette());
    if (selected && paintsEnabled())
        fill = GridColors::blend(fill, color(GridColors::Highlight), 0.18);
    painter.fillRect(rect, fill);
    paintBorderWith(painter, rect, selected ? BorderPressed : BorderRaised, fill);
    painter.setPen(color(GridColors::DarkShadow3D));
    painter.drawLine(rect.topRight(), rect.bottomRight());
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());

    const QFont font = headerFont(bold);
    painter.save();
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const int blockHeight = static_cast<int>(lines.size()) * metrics.height();
    int y = rect.top() + roundHalfEven((rect.height() - blockHeight) / 2.0);
    painter.setClipRect(rect.adjusted(1, 1, -1, -1));
    painter.setPen(color(paintsEnabled() ? GridColors::ButtonText : GridColors::GrayText));
    for (const QString &line : lines) {
        const int x = alignedLeft(alignment, rect.left(), rect.right(),
                                  metrics.horizontalAdvance(line));
        painter.drawText(x, y + metrics.ascent(), line);
        y += metrics.height();
    }
    painter.restore();
}

void RdcGridA::PaintBorder(const QRect &rect, int style)
{
    QPainter painter(&m_pic->canvas());
    paintBorderWith(painter, rect, style, GridColors::toColor(m_backColor, palette()));
    m_pic->update(rect);
}

void RdcGridA::paintBorderWith(QPainter &painter, const QRect &rect, int style,
                               const QColor &fill)
{
    using namespace GridColors;
    // Raised: light top-left, dark bottom-right; pressed: the same four colours reversed. The
    // outer bottom-right line is drawn as it is, the others are softened into the header's fill,
    // which keeps the header flat and crisp rather than bevelled.
    const int raised[4] = { Light3D, DarkShadow3D, ButtonHighlight3D, ButtonShadow };
    const int pressed[4] = { ButtonShadow, ButtonHighlight3D, DarkShadow3D, Light3D };
    const int *colors = style == BorderPressed ? pressed : raised;
    const QRect outer = rect;
    const QRect inner = rect.adjusted(1, 1, -1, -1);
    painter.save();
    painter.setPen(blend(fill, color(colors[0]), 0.2));
    painter.drawLine(outer.topLeft(), outer.topRight());
    painter.drawLine(outer.topLeft(), outer.bottomLeft());
    painter.setPen(color(colors[1]));
    painter.drawLine(outer.bottomLeft(), outer.bottomRight());
    painter.drawLine(outer.topRight(), outer.bottomRight());
    painter.setPen(blend(fill, color(colors[2]), 0.6));
    painter.drawLine(inner.topLeft(), inner.topRight());
    painter.drawLine(inner.topLeft(), inner.bottomLeft());
    painter.setPen(blend(fill, color(colors[3]), 0.25));
    painter.drawLine(inner.bottomLeft(), inner.bottomRight());
    painter.drawLine(inner.topRight(), inner.bottomRight());
    painter.restore();
}

void RdcGridA::paintSelectionFrame(QPainter &painter)
{
    const SelectionRange range = GetSelectionRange();
    if (range.topRow == range.bottomRow && range.leftCol == range.rightCol)
        return;
    const int top = std::max(range.topRow, 1);
    const int left = std::max(range.leftCol, 1);
    const int bottom = std::min(range.bottomRow, m_rows);
    const int right = std::min(range.rightCol, m_cols);
    if (top > bottom || left > right)
        return;
    // Edges of a selection that reaches beyond the visible cells fall outside the clip.
    const QRect frame(cellRectangle(top, left).topLeft(),
                      cellRectangle(bottom, right).bottomRight() - QPoint(1, 1));
    if (!frame.intersects(m_dataZone))
        return;
    painter.save();
    painter.setClipRect(m_dataZone);
    QPen pen(color(paintsEnabled() ? GridColors::Highlight : GridColors::GrayText), 2);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(frame).adjusted(1, 1, 0, 0));
    painter.restore();
}
