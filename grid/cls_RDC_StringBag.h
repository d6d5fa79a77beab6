#pragma once

#include "BoundedArray.h"

#include <QString>

// A rows x columns store of strings with optional automatic row numbering in column 0.
//
// The array is created once, by the first write, with the dimensions in force at that moment;
// later changes of Rows, Cols or AutoRowNumber change the fields only and never resize or free
// it. The owner is expected to set the dimensions before the first write. Consequences kept on
// purpose:
// - a store of a single row (Rows <= 1) never allocates and ignores every write;
// - a write outside the array's bounds raises StoreIndexError (the write has no range check);
// - turning AutoRowNumber off after the first write makes column-0 reads index a column the
//   array does not have: StoreIndexError again.
class cls_RDC_StringBag
{
public:
    int Rows() const { return m_rows; }
    void setRows(int rows) { m_rows = rows; }
    int Cols() const { return m_cols; }
    void setCols(int cols) { m_cols = cols; }

    // Column 0 yields the row number instead of a stored string. Takes effect on reads at once,
    // on the array's column bounds only when the array is created.
    bool AutoRowNumber() const { return m_autoRowNumber; }
    void setAutoRowNumber(bool on) { m_autoRowNumber = on; }

    // "" for an unallocated store or an index outside 0..Rows, 0..Cols; the row number for column
    // 0 of rows >= 1 when AutoRowNumber is on. Throws StoreIndexError when the index is inside
    // Rows and Cols but outside the array (the dimensions grew after the first write).
    QString Text(int row, int col) const;
    // Creates the array on the first write when Rows > 1 and Cols >= 1, else ignores the write.
    // Throws StoreIndexError for an index outside the array's bounds.
    void setText(int row, int col, const QString &value);

private:
    int m_rows = 0;
    int m_cols = 0;
    bool m_allocated = false;
    bool m_autoRowNumber = true;
    bool m_dirty = false; // set by every successful write; nothing reads it back
    BoundedArray2D<QString> m_cells;
};
