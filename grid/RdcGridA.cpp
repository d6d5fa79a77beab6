#include "RdcGridA.h"

#include "GridCellEditor.h"
#include "GridSurface.h"
#include "PropertyBag.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QtDebug>

#include <algorithm>

namespace {
// Default values of the persisted properties.
constexpr int kDefaultDataColumnWidth = 65;
constexpr int kDefaultRowHeaderWidth = 30;
constexpr int kDefaultDataAlign = RdcGridA::AlignRight;
constexpr bool kDefaultReadOnly = true;
constexpr bool kDefaultEnabled = true;
constexpr int kDefaultCols = 1;
constexpr int kDefaultRows = 10;
constexpr quint32 kDefaultBackColor = GridColors::tagged(GridColors::ButtonFace);
constexpr quint32 kDefaultCellBackColor = GridColors::tagged(GridColors::WindowBackground);
constexpr bool kDefaultTitleVisible = true;
constexpr int kDefaultTitleHeight = 19;
constexpr int kDefaultHeaderRowHeight = 20;
constexpr int kDefaultDataRowHeight = 20;
constexpr int kDefaultRowLabelAlign = RdcGridA::AlignLeft;
constexpr bool kDefaultBoldColumnHeaders = false;

// The title bar's font: the classic dialog face where it exists, else the desktop's sans face.
QFont titleFont(const QFont &base)
{
    QFont font(base);
    font.setFamilies({ QStringLiteral("MS Sans Serif"), base.family() });
    font.setWeight(QFont::Bold);
    return font;
}
} // namespace

const char *const RdcGridA::PropertyKeys[16] = {
    "DefDataColWidth",
    "DefRowHeaderWidth",
    "DefDataAlign",
    "ReadOnly",
    "Enabled",
    "Cols",
    "Rows",
    "BackColor",
    "CellBackColor",
    "TitleVisible",
    "TitleHeight",
    "Title",
    "HeaderRowHeight",
    "DataRowHeight",
    "RowLabelAlign",
    "BoldColumnHeaders",
};

RdcGridA::RdcGridA(QWidget *parent)
    : QWidget(parent)
{
    m_titleBar = new QLabel(this);
    m_titleBar->setObjectName(QStringLiteral("Titlebar"));
    m_titleBar->setFont(titleFont(font()));
    m_titleBar->setAlignment(Qt::AlignCenter);
    m_titleBar->setAutoFillBackground(true);

    m_pic = new GridSurface(this);
    m_pic->setObjectName(QStringLiteral("pic"));

    m_hsc = new QScrollBar(Qt::Horizontal, this);
    m_hsc->setObjectName(QStringLiteral("hsc"));
    m_vsc = new QScrollBar(Qt::Vertical, this);
    m_vsc->setObjectName(QStringLiteral("vsc"));
    for (QScrollBar *bar : { m_hsc, m_vsc }) {
        bar->setRange(1, 1);
        bar->setFocusPolicy(Qt::NoFocus);
        bar->hide();
    }
    for (const Axis axis : { Axis::Rows, Axis::Columns }) {
        connect(scrollBar(axis), &QScrollBar::valueChanged, this,
                [this, axis](int first) { setFirstVisible(axis, first); });
    }

    m_txt = new GridCellEditor(this, m_pic);
    m_txt->setObjectName(QStringLiteral("txt"));
    m_txt->hide();

    m_timer1 = new QTimer(this);
    m_timer1->setObjectName(QStringLiteral("Timer1"));
    m_timer1->setInterval(50);
    connect(m_timer1, &QTimer::timeout, this, [this] { autoScrollTick(); });

    setFocusProxy(m_pic);
    setFocusPolicy(Qt::StrongFocus);
    rebuildColumnsFromDefaults();
    updateTitleBar();
}

RdcGridA::~RdcGridA() = default;

// --- Saved state ---------------------------------------------------------------------------

void RdcGridA::readProperties(const PropertyBag &bag)
{
    m_defaultDataColumnWidth = bag.readInt(PropertyKeys[0], kDefaultDataColumnWidth);
    m_defaultRowHeaderWidth = bag.readInt(PropertyKeys[1], kDefaultRowHeaderWidth);
    m_defaultDataAlign = static_cast<qint16>(bag.readInt(PropertyKeys[2], kDefaultDataAlign));
    m_readOnly = bag.readBool(PropertyKeys[3], kDefaultReadOnly);
    m_enabled = bag.readBool(PropertyKeys[4], kDefaultEnabled);
    m_cols = std::max(0, bag.readInt(PropertyKeys[5], kDefaultCols));
    m_rows = std::max(0, bag.readInt(PropertyKeys[6], kDefaultRows));
    m_backColor = bag.readUInt(PropertyKeys[7], kDefaultBackColor);
    m_cellBackColor = bag.readUInt(PropertyKeys[8], kDefaultCellBackColor);
    m_titleVisible = bag.readBool(PropertyKeys[9], kDefaultTitleVisible);
    m_titleHeight = static_cast<qint16>(bag.readInt(PropertyKeys[10], kDefaultTitleHeight));
    m_title = bag.readString(PropertyKeys[11], QString());
    m_headerRowHeight = bag.readInt(PropertyKeys[12], kDefaultHeaderRowHeight);
    m_dataRowHeight = bag.readInt(PropertyKeys[13], kDefaultDataRowHeight);
    // Widths and alignments set at run time are not saved: they start again from the defaults.
    rebuildColumnsFromDefaults();
    m_rowLabelAlign = static_cast<qint16>(bag.readInt(PropertyKeys[14], kDefaultRowLabelAlign));
    m_boldColumnHeaders = bag.readBool(PropertyKeys[15], kDefaultBoldColumnHeaders);
    Refresh();
}

void RdcGridA::writeProperties(PropertyBag &bag) const
{
    bag.WriteProperty(PropertyKeys[0], m_defaultDataColumnWidth, kDefaultDataColumnWidth);
    bag.WriteProperty(PropertyKeys[1], m_defaultRowHeaderWidth, kDefaultRowHeaderWidth);
    bag.WriteProperty(PropertyKeys[2], int(m_defaultDataAlign), kDefaultDataAlign);
    bag.WriteProperty(PropertyKeys[3], m_readOnly, kDefaultReadOnly);
    bag.WriteProperty(PropertyKeys[4], m_enabled, kDefaultEnabled);
    bag.WriteProperty(PropertyKeys[5], m_cols, kDefaultCols);
    bag.WriteProperty(PropertyKeys[6], m_rows, kDefaultRows);
    bag.WriteProperty(PropertyKeys[7], m_backColor, kDefaultBackColor);
    bag.WriteProperty(PropertyKeys[8], m_cellBackColor, kDefaultCellBackColor);
    bag.WriteProperty(PropertyKeys[9], m_titleVisible, kDefaultTitleVisible);
    bag.WriteProperty(PropertyKeys[10], int(m_titleHeight), kDefaultTitleHeight);
    bag.WriteProperty(PropertyKeys[11], m_title, QString());
    bag.WriteProperty(PropertyKeys[12], m_headerRowHeight, kDefaultHeaderRowHeight);
    bag.WriteProperty(PropertyKeys[13], m_dataRowHeight, kDefaultDataRowHeight);
    bag.WriteProperty(PropertyKeys[14], int(m_rowLabelAlign), kDefaultRowLabelAlign);
    bag.WriteProperty(PropertyKeys[15], m_boldColumnHeaders, kDefaultBoldColumnHeaders);
}

void RdcGridA::rebuildColumnsFromDefaults()
{
    m_columnWidths = BoundedArray<int>(0, m_cols, m_defaultDataColumnWidth);
    m_columnWidths[0] = m_defaultRowHeaderWidth;
    if (m_cols >= 1)
        m_columnAlignments = BoundedArray<qint16>(1, m_cols, 0);
}

// --- Cells ---------------------------------------------------------------------------------

QString RdcGridA::Text(int row, int col) const
{
    if (row == 0 && col >= 1)
        return m_headerLabelsAllocated ? m_headerLabels.at(col) : QString::number(col);
    if (row != 0 && col != 0) {
        if (col < 1 || col > m_cols || !m_cellsAllocated)
            return QString();
        return m_cells(row, col); // rows are not range-tested: past the array is a fault
    }
    return QString();
}

void RdcGridA::setText(int row, int col, const QString &value)
{
    if (col < 1 || col > m_cols)
        return;
    if (row == 0) {
        if (!m_headerLabelsAllocated && m_cols > 0) {
            m_headerLabels = BoundedArray<QString>(1, m_cols);
            m_headerLabelsAllocated = true;
        }
        if (m_headerLabelsAllocated)
            m_headerLabels[col] = value;
        return;
    }
    // A grid without rows still answers a write to its first row as a data change, although the
    // cell has nowhere to go.
    if (row < 1 || row > std::max(m_rows, 1))
        return;
    if (!m_cellsAllocated && m_rows >= 1 && m_cols > 0) {
        m_cells = BoundedArray2D<QString>(1, m_rows, 1, m_cols);
        m_cellsAllocated = true;
    }
    if (m_cellsAllocated) {
        m_cells(row, col) = value;
        PaintCell(row, col, cellMode(row, col));
    }
    setDataChanged();
}

QString RdcGridA::withoutBlanks(const QString &text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text.at(first) == QLatin1Char(' '))
        ++first;
    while (last > first && text.at(last - 1) == QLatin1Char(' '))
        --last;
    return text.mid(first, last - first);
}

QString RdcGridA::storedText(int row, int col) const
{
    if (row == 0) {
        if (col < 1)
            return QString();
        if (!m_headerLabelsAllocated)
            return QString::number(col);
        return m_headerLabels.contains(col) ? m_headerLabels.at(col) : QString();
    }
    if (col < 1 || col > m_cols || !m_cellsAllocated || !m_cells.contains(row, col))
        return QString();
    return m_cells(row, col);
}

void RdcGridA::writeCell(int row, int col, const QString &value)
{
    try {
        setText(row, col, value);
    } catch (const StoreIndexError &error) {
        // Rows grew after the cells were created and the owner did not Clear: the cell has no
        // room, so the typed or pasted value is dropped rather than taking the program down.
        qWarning("RdcGridA: cell (%d, %d) not stored: %s", row, col, error.what());
    }
}

void RdcGridA::emptyCells(const SelectionRange &range)
{
    if (!m_cellsAllocated)
        return;
    for (int r = range.topRow; r <= range.bottomRow; ++r) {
        for (int c = range.leftCol; c <= range.rightCol; ++c) {
            if (m_cells.contains(r, c))
                m_cells(r, c).clear();
        }
    }
}

void RdcGridA::setDataChanged()
{
    m_changed = true;
    emit Change();
}

void RdcGridA::setRows(int rows)
{
    m_rows = std::max(0, rows);
}

void RdcGridA::setCols(int cols)
{
    cols = std::max(0, cols);
    m_cols = cols;
    m_columnWidths.resize(0, cols, m_defaultDataColumnWidth);
    if (m_headerLabelsAllocated) {
        const int oldUpper = m_headerLabels.upper();
        m_headerLabels.resize(1, cols);
        for (int k = oldUpper + 1; k <= cols; ++k)
            m_headerLabels[k] = QString::number(k);
    }
    m_columnAlignments.resize(1, cols, 0);
    if (m_currentCol > cols)
        m_currentCol = cols;
    if (m_anchorCol > cols)
        m_anchorCol = cols;
}

void RdcGridA::Clear()
{
    if (m_editing)
        endEdit(EditEnd::Discard);
    if (m_cellsAllocated) {
        m_cells = BoundedArray2D<QString>();
        m_cellsAllocated = false;
    }
    setFirstVisible(Axis::Rows, 1);
    setFirstVisible(Axis::Columns, 1);
    SetCurrentCell(1, 1);
    if (Shown() && IsCellVisible(m_currentRow, m_currentCol) != FullyVisible)
        MakeCellVisible(m_currentRow, m_currentCol);
    paintSurface();
    setDataChanged();
}

void RdcGridA::Home()
{
    setFirstVisible(Axis::Rows, 1);
    setFirstVisible(Axis::Columns, 1);
    SetCurrentCell(1, 1);
}

void RdcGridA::SetCurrentCell(int row, int col)
{
    if (m_editing && !m_endingEdit)
        endEdit(EditEnd::Commit);
    m_currentRow = m_anchorRow = m_endRow = row;
    m_currentCol = m_anchorCol = m_endCol = col;
    m_selectionKind = SelectionKind::Cells;
    paintSelection();
}

int RdcGridA::ColumnWidth(int col) const
{
    return m_columnWidths.at(col);
}

void RdcGridA::setColumnWidth(int col, int width)
{
    if (m_cols > 0 && col >= 0 && col <= m_cols && col <= m_columnWidths.upper())
        m_columnWidths[col] = width;
}

qint16 RdcGridA::ColumnAlignment(int col) const
{
    return col != 0 ? m_columnAlignments.at(col) : m_rowLabelAlign;
}

void RdcGridA::setColumnAlignment(int col, qint16 alignment)
{
    if (m_cols <= 0 || col < 0 || col > m_cols)
        return;
    if (col == 0)
        m_rowLabelAlign = alignment;
    else if (col <= m_columnWidths.upper() && m_columnAlignments.contains(col))
        m_columnAlignments[col] = alignment;
}

int RdcGridA::OptimumWidth() const
{
    if (m_cols <= 0)
        return 0;
    int width = 0;
    for (int col = 0; col <= m_cols; ++col)
        width += ColumnWidth(col);
    return width;
}

// --- Properties with side effects ------------------------------------------------------------

void RdcGridA::setEnabled(bool enabled)
{
    if (!enabled && m_editing)
        endEdit(EditEnd::Commit);
    m_enabled = enabled;
    if (isVisible())
        Refresh();
}

void RdcGridA::setTitleVisible(bool visible)
{
    m_titleVisible = visible;
    updateTitleBar();
    ProportionGrid();
}

void RdcGridA::setTitleHeight(qint16 height)
{
    m_titleHeight = height;
    ProportionGrid();
}

void RdcGridA::setTitle(const QString &title)
{
    m_title = title;
    updateTitleBar();
    ProportionGrid();
}

void RdcGridA::Refresh()
{
    ProportionGrid();
    if (m_titleVisible)
        updateTitleBar();
    paintSurface();
}

QSize RdcGridA::sizeHint() const
{
    constexpr int kRowsShown = 10;
    const int title = m_titleVisible ? m_titleHeight : 0;
    const int bar = m_rows > kRowsShown ? m_vsc->sizeHint().width() : 0;
    return QSize(OptimumWidth() + bar,
                 title + m_headerRowHeight + std::min(m_rows, kRowsShown) * m_dataRowHeight);
}

void RdcGridA::updateTitleBar()
{
    QPalette palette = m_titleBar->palette();
    palette.setColor(QPalette::Window, GridColors::toColor(m_backColor, this->palette()));
    palette.setColor(QPalette::WindowText, color(GridColors::ButtonText));
    m_titleBar->setPalette(palette);
    m_titleBar->setText(m_title);
    m_titleBar->setVisible(m_titleVisible);
}

// --- Qt events -------------------------------------------------------------------------------

void RdcGridA::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    ProportionGrid();
    paintSurface();
}

void RdcGridA::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        updateTitleBar();
        paintSurface();
        break;
    case QEvent::FontChange:
        m_titleBar->setFont(titleFont(font()));
        paintSurface();
        break;
    default:
        break;
    }
}

void RdcGridA::paintEvent(QPaintEvent *)
{
    // Only the square between the two scroll bars shows the control itself.
    QPainter painter(this);
    painter.fillRect(rect(), GridColors::toColor(m_backColor, palette()));
}
