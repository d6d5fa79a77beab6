#include "cls_RDC_StringBag.h"

QString cls_RDC_StringBag::Text(int row, int col) const
{
    if (!m_allocated || row < 0 || row > m_rows || col < 0 || col > m_cols)
        return QString();
    if (col != 0 || !m_autoRowNumber)
        return m_cells(row, col);
    return row >= 1 ? QString::number(row) : QString();
}

void cls_RDC_StringBag::setText(int row, int col, const QString &value)
{
    if (!m_allocated && m_rows > 1 && m_cols >= 1) {
        // With automatic numbering column 0 is computed, so the array starts at column 1.
        m_cells = BoundedArray2D<QString>(0, m_rows, m_autoRowNumber ? 1 : 0, m_cols);
        m_allocated = true;
    }
    if (!m_allocated)
        return;
    m_cells(row, col) = value;
    m_dirty = true;
}
