#pragma once

#include "BoundedArray.h"
#include "GridColors.h"

#include <QRect>
#include <QString>
#include <QWidget>

class GridCellEditor;
class GridSurface;
class PropertyBag;
class QLabel;
class QPainter;
class QScrollBar;
class QTimer;

// A titled table of text cells with a header row, a row-header column, scroll bars and in-place
// editing: the program's own small spreadsheet control, used for the inlet rating curve.
//
// Addressing: row 0 is the header row and column 0 the row-header column; data cells run from
// (1, 1) to (Rows, Cols). Sizes are pixels of the drawing surface.
//
// The owner reads and writes cells with Text and setText, sizes the grid with setRows and setCols
// (calling Clear before writing cells after a change of Rows), watches Change and the Changed
// flag, and steers the user with SetCurrentCell and MakeCellVisible.
//
// Children, by object name: "Titlebar" (title label), "pic" (drawing surface that takes the
// mouse and keyboard), "hsc" and "vsc" (scroll bars whose values are the first visible column and
// row), "txt" (the in-place editor) and "Timer1" (automatic scrolling while dragging).
//
// The store faults on purpose where its indexes are left unchecked: reading a data cell of a row
// beyond the cell array, a header label beyond Cols once labels exist, or ColumnWidth outside
// 0..Cols throws StoreIndexError. The grid's own painting and editing never read past the arrays.
class RdcGridA : public QWidget
{
    Q_OBJECT

public:
    // Modes of PaintCell.
    enum PaintMode { PlainCell = 1, SelectedCell = 2, MarkedCurrentCell = 3 };
    // Codes of HitZone; 2 and 4 are never produced.
    enum Zone {
        ZoneNone = 0,
        ZoneCorner = 1,
        ZoneColumnHeader = 3,
        ZoneRowHeader = 5,
        ZoneDataCell = 6
    };
    // Codes of IsCellVisible.
    enum Visibility { NotVisible = 0, FullyVisible = 1, PartlyVisible = 2 };
    // Alignment codes of ColumnAlignment, DefaultDataAlign and RowLabelAlign; 0 in a column
    // means "use DefaultDataAlign".
    enum Alignment { AlignDefault = 0, AlignRight = 1, AlignLeft = 2, AlignCentre = 3 };
    // Styles of PaintBorder.
    enum BorderStyle { BorderRaised = 0, BorderPressed = 1 };
    // Codes of GetRowNumQuadrant.
    enum Quadrant { QuadrantInside = 0, QuadrantAbove = 1, QuadrantBelow = 2 };

    // The normalized selection: top <= bottom, left <= right.
    struct SelectionRange
    {
        int topRow = 1;
        int leftCol = 1;
        int bottomRow = 1;
        int rightCol = 1;
    };

    // Keys of the persisted properties, in their saving order.
    static const char *const PropertyKeys[16];

    explicit RdcGridA(QWidget *parent = nullptr);
    ~RdcGridA() override;

    // --- Saved state -----------------------------------------------------------------------
    // Replaces the persisted properties by the bag's values (defaults for missing keys) and
    // rebuilds the column widths and alignments from the defaults.
    void readProperties(const PropertyBag &bag);
    // Writes the 16 persisted properties; values equal to their defaults are left out.
    void writeProperties(PropertyBag &bag) const;

    // --- Cells -----------------------------------------------------------------------------
    // Row 0 gives the column header (its number until a header is written), a data cell its
    // text, column 0 and columns outside 1..Cols "".
    QString Text(int row, int col) const;
    // Row 0 sets a column header (no Change). A data cell sets Changed and raises Change; the
    // cell array is created by the first write with the current Rows and Cols. Other indexes are
    // ignored.
    void setText(int row, int col, const QString &value);

    int Rows() const { return m_rows; }
    // Stores the number only: the cell array keeps its size until Clear.
    void setRows(int rows);
    int Cols() const { return m_cols; }
    // Resizes the column widths, alignments and header labels; not the cell array.
    void setCols(int cols);

    // True after any change of data cells; only the owner resets it.
    bool Changed() const { return m_changed; }
    void setChanged(bool changed) { m_changed = changed; }

    // Frees the cells (header labels stay), scrolls home, makes (1, 1) current, sets Changed and
    // raises Change once.
    void Clear();
    // Scrolls to the first row and column and makes (1, 1) current.
    void Home();
    // Makes (row, col) current and collapses the selection to it.
    void SetCurrentCell(int row, int col);
    // The current row; writing it calls SetCurrentCell.
    int row() const { return m_currentRow; }
    void setRow(int row) { SetCurrentCell(row, m_currentCol); }
    // The current column; writing it stores the column only (no repaint, selection kept).
    int Col() const { return m_currentCol; }
    void setCol(int col) { m_currentCol = col; }

    // Width of a column in pixels; column 0 is the row-header column.
    int ColumnWidth(int col) const;
    void setColumnWidth(int col, int width);
    // Alignment code of a data column; column 0 is RowLabelAlign.
    qint16 ColumnAlignment(int col) const;
    void setColumnAlignment(int col, qint16 alignment);
    // Width that shows every column without horizontal scrolling (0 without columns).
    int OptimumWidth() const;

    // --- Properties (the owner calls Refresh after changing look or size) -------------------
    bool ReadOnly() const { return m_readOnly; }
    void setReadOnly(bool readOnly) { m_readOnly = readOnly; }
    // The grid's own Enabled: a grid that is not Enabled paints grey and refuses editing, cut
    // and paste, but still navigates, selects and copies. (QWidget::isEnabled is Qt's state;
    // a grid disabled by Qt also paints grey.)
    bool Enabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    int HeaderRowHeight() const { return m_headerRowHeight; }
    void setHeaderRowHeight(int height) { m_headerRowHeight = height; }
    int DataRowHeight() const { return m_dataRowHeight; }
    void setDataRowHeight(int height) { m_dataRowHeight = height; }
    // 32-bit colour values (see GridColors): the background, headers and title; the editor.
    quint32 BackColor() const { return m_backColor; }
    void setBackColor(quint32 color) { m_backColor = color; }
    quint32 CellBackColor() const { return m_cellBackColor; }
    void setCellBackColor(quint32 color) { m_cellBackColor = color; }
    int DefaultDataColumnWidth() const { return m_defaultDataColumnWidth; }
    void setDefaultDataColumnWidth(int width) { m_defaultDataColumnWidth = width; }
    int DefaultRowHeaderWidth() const { return m_defaultRowHeaderWidth; }
    void setDefaultRowHeaderWidth(int width) { m_defaultRowHeaderWidth = width; }
    qint16 DefaultDataAlign() const { return m_defaultDataAlign; }
    void setDefaultDataAlign(qint16 alignment) { m_defaultDataAlign = alignment; }
    bool TitleVisible() const { return m_titleVisible; }
    void setTitleVisible(bool visible);
    qint16 TitleHeight() const { return m_titleHeight; }
    void setTitleHeight(qint16 height);
    QString Title() const { return m_title; }
    void setTitle(const QString &title);
    qint16 RowLabelAlign() const { return m_rowLabelAlign; }
    void setRowLabelAlign(qint16 alignment) { m_rowLabelAlign = alignment; }
    bool BoldColumnHeaders() const { return m_boldColumnHeaders; }
    void setBoldColumnHeaders(bool bold) { m_boldColumnHeaders = bold; }

    // Lays the control out again and repaints the title and every cell.
    void Refresh();
    // All columns, the vertical scroll bar when more than ten rows, ten rows or fewer.
    QSize sizeHint() const override;

    // Inert entry points kept in the interface: row insertion and deletion, auto-fill, column
    // synchronisation and state saving are not available.
    bool Shown() const { return false; }
    void bak_ProportionGrid() { }
    void bak_AutoFillSelection() { }
    void bak_SynchronizeColumns() { }
    bool bak_DeleteSelectedRows() { return false; }
    bool bak_InsertSelectedRows() { return false; }
    bool bak_SaveCurrentState() { return false; }

    // --- Geometry and painting (RdcGridALayout.cpp, RdcGridAPaint.cpp) ---------------------
    // Places the title bar, the drawing surface and the scroll bars that the content needs,
    // then records the zone rectangles.
    void ProportionGrid();
    // Paints one data cell in a mode (PaintMode); nothing when the cell is not visible.
    void PaintCell(int row, int col, int mode);
    // A 3-D frame inside rect: raised for any style but BorderPressed.
    void PaintBorder(const QRect &rect, int style);
    // The header cell of a data column, in surface coordinates (right and bottom inclusive).
    QRect GetColumnHeaderRectangle(int col) const;
    void PaintRowHeaders();
    void PaintDataCells();
    // Text metrics of the drawing surface, in whole pixels; several lines stack.
    int TextHeight(const QString &text) const;
    int TextWidth(const QString &text) const;
    // The last data column whose right edge lies inside the surface (at least the first
    // visible column - 1).
    int LastFullyVisibleColumn() const;
    // Where a surface y lies: QuadrantAbove, QuadrantBelow or QuadrantInside.
    int GetRowNumQuadrant(int y) const;
    // The zone (Zone) of a surface point.
    int HitZone(int x, int y) const;
    // NotVisible, FullyVisible or PartlyVisible.
    int IsCellVisible(int row, int col) const;
    // A data cell's rectangle on the surface (right and bottom inclusive: its grid lines).
    QRect cellRectangle(int row, int col) const;
    // The lines a column header shows: its caption's lines, or all of them on one line when the
    // header row is too low to stack them; and the width they take, in the header font.
    QStringList headerCaptionLines(int col) const;
    int headerCaptionWidth(int col) const;
    int firstVisibleRow() const { return m_firstVisibleRow; }
    int firstVisibleCol() const { return m_firstVisibleCol; }

    // --- Editing, selection and clipboard (RdcGridAEdit.cpp) ---------------------------------
    // Scrolls rows, then columns, until the cell is fully visible.
    void MakeCellVisible(int row, int col);
    // Puts the selection's texts on the clipboard: tab between cells, CR LF after every row.
    void CopySelection();
    // Copy, then empty the selection and raise Change; refused on a ReadOnly or disabled grid.
    void CutSelection();
    // Writes the clipboard's lines and tokens from the selection's top-left cell; refused on a
    // ReadOnly or disabled grid.
    void PasteSelection();
    SelectionRange GetSelectionRange() const;
    // True while the in-place editor is open.
    bool isEditing() const { return m_editing; }

signals:
    // The right mouse button was released over the drawing surface.
    void RightMouseMenu();
    // Declared for the control's interface; never raised.
    void ButtonPressed();
    // Declared for the control's interface; never raised.
    void RequestToolbarData();
    // Data cells changed (see setText, Clear, editing, cut, paste, Delete).
    void Change();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    friend class GridSurface;
    friend class GridCellEditor;

    enum class SelectionKind { Cells, Rows, Columns, All };
    enum class EditEnd { Commit, Discard };
    // The grid's two directions: rows run down the surface, columns across it. What both do
    // alike (visibility, scrolling, header selection, automatic scrolling) takes the axis.
    enum class Axis { Rows, Columns };

    // Store helpers (RdcGridA.cpp)
    static QString withoutBlanks(const QString &text); // blanks (spaces) only, both ends
    static QStringList textLines(const QString &text); // split at CR LF, CR or LF
    void rebuildColumnsFromDefaults();
    QString storedText(int row, int col) const; // never faults: "" outside the arrays
    void emptyCells(const SelectionRange &range);
    void writeCell(int row, int col, const QString &value); // setText that never faults
    void setDataChanged();

    // Geometry helpers (RdcGridALayout.cpp)
    int widthOf(int col) const;
    int columnLeft(int col) const; // left edge of a visible column, or -1
    int rowTop(int row) const; // top edge of a visible row, or -1
    int count(Axis axis) const { return axis == Axis::Rows ? m_rows : m_cols; }
    int firstVisible(Axis axis) const;
    QScrollBar *scrollBar(Axis axis) const;
    int cellStart(Axis axis, int index) const; // rowTop or columnLeft
    int cellExtent(Axis axis, int index) const; // a row's height or a column's width
    int dataZoneEnd(Axis axis) const; // last pixel of the data area: bottom or right
    int visibility(Axis axis, int index) const; // NotVisible, FullyVisible or PartlyVisible
    int fullyVisibleRowCount() const;
    int maxFirstVisible(Axis axis) const;
    int maxFirstVisibleRow() const;
    int maxFirstVisibleColumn() const;
    // The first visible row (column) that shows `index` whole at the bottom (right) edge.
    int firstVisibleEndingAt(Axis axis, int index) const;
    // The last row (column) shown whole, at least the first visible one.
    int lastFullyVisible(Axis axis) const;
    int rowAt(int y) const; // row under a surface y, clamped to the visible rows
    int columnAt(int x) const; // column under a surface x, clamped to the visible columns
    int columnBorderAt(int x, int y) const; // column whose header border is under the point, or 0
    void setFirstVisible(Axis axis, int first);
    // Scrolls along `axis` until row (column) `index` is fully visible.
    void showWhole(Axis axis, int index);
    bool paintsEnabled() const;
    QColor color(int systemColorIndex) const;
    int cellMode(int row, int col) const;
    void paintSurface();
    void paintCellWith(QPainter &painter, int row, int col, int mode);
    void paintCorner(QPainter &painter);
    void paintColumnHeaders(QPainter &painter);
    void paintRowHeadersWith(QPainter &painter);
    void paintHeaderCell(QPainter &painter, const QRect &rect, const QStringList &lines,
                         int alignment, bool selected, bool bold);
    QFont headerFont(bool bold) const;
    QStringList fittedCaptionLines(const QString &caption, bool bold) const;
    void paintBorderWith(QPainter &painter, const QRect &rect, int style);
    void paintDataCellsWith(QPainter &painter);
    void paintSelectionFrame(QPainter &painter);
    void paintSelection();
    void updateTitleBar();

    // Keyboard, mouse and editing (RdcGridAEdit.cpp, RdcGridAMouse.cpp)
    void surfaceKeyPress(QKeyEvent *event);
    bool surfaceShortcut(QKeyEvent *event);
    void moveCurrentCell(int rowStep, int colStep);
    void extendSelection(int rowStep, int colStep);
    void moveEndCorner(int row, int col);
    void moveEndCornerAlong(Axis axis, int index); // the other coordinate stays
    void moveByPage(int direction, bool extend);
    void walkWithEnter();
    void jumpHome(bool extend);
    void jumpEnd(bool extend, bool toLastUsedCell);
    QPoint lastUsedCell() const;
    void deleteSelection();
    void selectAll();
    bool mayEdit() const;
    void startEdit(const QString &initialText);
    void endEdit(EditEnd how);
    void placeEditor();
    void editorKeyPress(QKeyEvent *event);
    void editorFocusLost(Qt::FocusReason reason);
    void surfaceMousePress(QMouseEvent *event);
    void surfaceMouseMove(QMouseEvent *event);
    void surfaceMouseRelease(QMouseEvent *event);
    void surfaceWheel(QWheelEvent *event);
    void surfaceFocusChanged(bool focusIn, Qt::FocusReason reason);
    void loseFocusColours();
    void selectLine(Axis axis, int index, bool extend); // a press on a row or column header
    void dragTo(const QPoint &position);
    void autoScrollTick();
    // -1 when the drag left the surface before its first row (column), 1 past its last, else 0.
    int dragDirection(Axis axis) const;
    void autoScroll(Axis axis, int direction);
    void startColumnResize(int col, int x);
    void moveResizeGuide(int x);
    void finishColumnResize(int x);
    void drawResizeGuide(int x);

    // Children
    QLabel *m_titleBar = nullptr;
    GridSurface *m_pic = nullptr;
    QScrollBar *m_hsc = nullptr;
    QScrollBar *m_vsc = nullptr;
    GridCellEditor *m_txt = nullptr;
    QTimer *m_timer1 = nullptr;

    // Persisted properties
    int m_defaultDataColumnWidth = 65;
    int m_defaultRowHeaderWidth = 30;
    qint16 m_defaultDataAlign = AlignRight;
    bool m_readOnly = true;
    bool m_enabled = true;
    int m_cols = 1;
    int m_rows = 10;
    quint32 m_backColor = GridColors::tagged(GridColors::ButtonFace);
    quint32 m_cellBackColor = GridColors::tagged(GridColors::WindowBackground);
    bool m_titleVisible = true;
    qint16 m_titleHeight = 19;
    QString m_title;
    int m_headerRowHeight = 20;
    int m_dataRowHeight = 20;
    qint16 m_rowLabelAlign = AlignLeft;
    bool m_boldColumnHeaders = false;

    // Store
    BoundedArray<int> m_columnWidths; // 0..Cols, 0 is the row-header column
    BoundedArray<qint16> m_columnAlignments; // 1..Cols
    BoundedArray2D<QString> m_cells; // (1..Rows, 1..Cols) as at the first write
    bool m_cellsAllocated = false;
    BoundedArray<QString> m_headerLabels; // 1..Cols
    bool m_headerLabelsAllocated = false;
    bool m_changed = false;

    // Current cell, selection and scroll position
    int m_currentRow = 1;
    int m_currentCol = 1;
    int m_anchorRow = 1;
    int m_anchorCol = 1;
    int m_endRow = 1;
    int m_endCol = 1;
    int m_firstVisibleRow = 1;
    int m_firstVisibleCol = 1;

    // Interaction state
    bool m_focused = false;
    bool m_editing = false;
    bool m_endingEdit = false;
    bool m_dragging = false;
    SelectionKind m_selectionKind = SelectionKind::Cells;
    QPoint m_lastDragPoint;
    bool m_resizing = false;
    int m_resizeColumn = 0;
    int m_resizeGuideX = -1;

    // Zone rectangles of the drawing surface (right and bottom inclusive)
    QRect m_cornerZone;
    QRect m_columnHeaderZone;
    QRect m_rowHeaderZone;
    QRect m_dataZone;
};
