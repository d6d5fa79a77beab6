// Painting of RdcGridA: cells with their mode colours, headers, borders and the selection frame.
#include "RdcGridA.h"

#include "GridSurface.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
// Halves round to the even pixel, as the classic integer rounding of the layout did.
int roundHalfEven(double value)
{
    return static_cast<int>(std::nearbyint(value));
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
    painter.fillRect(QRect(QPoint(0, 0), m_pic->size()),
                     GridColors::toColor(m_backColor, palette()));
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
    for (int row = m_firstVisibleRow; visibility(Axis::Rows, row) != NotVisible; ++row) {
        for (int col = m_firstVisibleCol; visibility(Axis::Columns, col) != NotVisible; ++col)
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
    painter.setClipRect(
            QRect(QPoint(cell.left() + 2, cell.top()), QPoint(cell.right() - 3, cell.bottom())));
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
    for (int col = m_firstVisibleCol; visibility(Axis::Columns, col) != NotVisible; ++col) {
        const bool selected = col >= range.leftCol && col <= range.rightCol;
        paintHeaderCell(painter, GetColumnHeaderRectangle(col), headerCaptionLines(col),
                        AlignCentre, selected, m_boldColumnHeaders);
    }
}

void RdcGridA::paintRowHeadersWith(QPainter &painter)
{
    const SelectionRange range = GetSelectionRange();
    for (int row = m_firstVisibleRow; visibility(Axis::Rows, row) != NotVisible; ++row) {
        const QRect rect(QPoint(0, rowTop(row)),
                         QPoint(widthOf(0) - 1, rowTop(row) + m_dataRowHeight - 1));
        const bool selected = row >= range.topRow && row <= range.bottomRow;
        paintHeaderCell(painter, rect, QStringList(QString::number(row)), m_rowLabelAlign, selected,
                        false);
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
    const QStringList lines = textLines(withoutBlanks(caption));
    // A caption of several lines that the header row cannot hold is shown on one line.
    if (static_cast<int>(lines.size()) * QFontMetrics(headerFont(bold)).height()
        > m_headerRowHeight)
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
    paintBorderWith(painter, rect, selected ? BorderPressed : BorderRaised);
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
    // Captions keep the button-text colour when the grid is disabled: the headers name the
    // columns and rows whether or not the cells take input.
    painter.setPen(color(GridColors::ButtonText));
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
    paintBorderWith(painter, rect, style);
    m_pic->update(rect);
}

void RdcGridA::paintBorderWith(QPainter &painter, const QRect &rect, int style)
{
    using namespace GridColors;
    // Raised: 3-D light on the outer top-left, dark shadow on the outer bottom-right, highlight
    // and shadow on the inner pair; pressed: the same four colours in reverse order.
    const int raised[4] = { Light3D, DarkShadow3D, ButtonHighlight3D, ButtonShadow };
    const int pressed[4] = { ButtonShadow, ButtonHighlight3D, DarkShadow3D, Light3D };
    const int *colors = style == BorderPressed ? pressed : raised;
    const QRect outer = rect;
    const QRect inner = rect.adjusted(1, 1, -1, -1);
    painter.save();
    painter.setPen(color(colors[0]));
    painter.drawLine(outer.topLeft(), outer.topRight());
    painter.drawLine(outer.topLeft(), outer.bottomLeft());
    painter.setPen(color(colors[1]));
    painter.drawLine(outer.bottomLeft(), outer.bottomRight());
    painter.drawLine(outer.topRight(), outer.bottomRight());
    painter.setPen(color(colors[2]));
    painter.drawLine(inner.topLeft(), inner.topRight());
    painter.drawLine(inner.topLeft(), inner.bottomLeft());
    painter.setPen(color(colors[3]));
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
