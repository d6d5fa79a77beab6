#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

// Arrays with explicit lower and upper bounds, as the grid's stores are dimensioned: the header
// labels run from 1 to Cols, the column widths from 0 to Cols, the cells from (1, 1) to
// (Rows, Cols). An index outside the bounds raises StoreIndexError; the stores rely on that
// fault where an index is deliberately left unchecked.

// The index-out-of-range fault of the grid's stores.
class StoreIndexError : public std::out_of_range
{
public:
    explicit StoreIndexError(const std::string &what)
        : std::out_of_range(what)
    { }
};

namespace BoundedArrayDetail {
[[noreturn]] void throwOutOfRange(const char *what, int index, int lower, int upper);
}

// One dimension, lower..upper; empty when upper < lower.
template<typename T>
class BoundedArray
{
public:
    BoundedArray() = default;
    BoundedArray(int lower, int upper, const T &fill = T()) { resize(lower, upper, fill); }

    int lower() const { return m_lower; }
    int upper() const { return m_upper; }
    bool contains(int index) const { return index >= m_lower && index <= m_upper; }

    // Redimensions, keeping the entries whose index survives; new entries take `fill`.
    void resize(int lower, int upper, const T &fill = T())
    {
        std::vector<T> items(upper >= lower ? static_cast<size_t>(upper - lower + 1) : 0, fill);
        for (int i = std::max(lower, m_lower); i <= std::min(upper, m_upper); ++i)
            items[static_cast<size_t>(i - lower)] = at(i);
        m_items.swap(items);
        m_lower = lower;
        m_upper = upper;
    }

    T &operator[](int index) { return m_items[slot(index)]; }
    const T &operator[](int index) const { return m_items[slot(index)]; }
    const T &at(int index) const { return m_items[slot(index)]; }

private:
    size_t slot(int index) const
    {
        if (!contains(index))
            BoundedArrayDetail::throwOutOfRange("index", index, m_lower, m_upper);
        return static_cast<size_t>(index - m_lower);
    }

    std::vector<T> m_items;
    int m_lower = 0;
    int m_upper = -1;
};

// Two dimensions, (firstRow..lastRow, firstCol..lastCol), created once and never resized.
template<typename T>
class BoundedArray2D
{
public:
    BoundedArray2D() = default;
    BoundedArray2D(int firstRow, int lastRow, int firstCol, int lastCol)
        : m_firstRow(firstRow)
        , m_lastRow(lastRow)
        , m_firstCol(firstCol)
        , m_lastCol(lastCol)
        , m_items(static_cast<size_t>(std::max(0, lastRow - firstRow + 1))
                  * static_cast<size_t>(std::max(0, lastCol - firstCol + 1)))
    { }

    int firstRow() const { return m_firstRow; }
    int lastRow() const { return m_lastRow; }
    int firstCol() const { return m_firstCol; }
    int lastCol() const { return m_lastCol; }
    bool contains(int row, int col) const
    {
        return row >= m_firstRow && row <= m_lastRow && col >= m_firstCol && col <= m_lastCol;
    }

    T &operator()(int row, int col) { return m_items[slot(row, col)]; }
    const T &operator()(int row, int col) const { return m_items[slot(row, col)]; }

private:
    size_t slot(int row, int col) const
    {
        if (row < m_firstRow || row > m_lastRow)
            BoundedArrayDetail::throwOutOfRange("row", row, m_firstRow, m_lastRow);
        if (col < m_firstCol || col > m_lastCol)
            BoundedArrayDetail::throwOutOfRange("column", col, m_firstCol, m_lastCol);
        const int width = m_lastCol - m_firstCol + 1;
        return static_cast<size_t>(row - m_firstRow) * static_cast<size_t>(width)
                + static_cast<size_t>(col - m_firstCol);
    }

    int m_firstRow = 0;
    int m_lastRow = -1;
    int m_firstCol = 0;
    int m_lastCol = -1;
    std::vector<T> m_items;
};
