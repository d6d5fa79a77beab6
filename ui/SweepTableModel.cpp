#include "SweepTableModel.h"

#include "SweepCsv.h"

#include <QColor>

namespace {
QStringList toStringList(const std::vector<std::string> &fields)
{
    QStringList list;
    for (const std::string &field : fields)
        list.append(QString::fromStdString(field));
    return list;
}
} // namespace

void SweepTableModel::setSweep(const SweepResult *sweep)
{
    beginResetModel();
    m_sweep = sweep;
    m_rows = 0;
    m_cachedRow = -1;
    m_headers.clear();
    if (sweep) {
        m_headers = toStringList(sweepHeaderFields(*sweep, CsvHeader::Captions));
        while (m_rows < static_cast<int>(sweep->rows.size())
               && sweep->rows[static_cast<size_t>(m_rows)].status != PointStatus::NotRun)
            ++m_rows;
    }
    endResetModel();
}

int SweepTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int SweepTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headers.size());
}

QVariant SweepTableModel::data(const QModelIndex &index, int role) const
{
    if (!m_sweep || !index.isValid())
        return {};
    const SweepRow &row = m_sweep->rows[static_cast<size_t>(index.row())];
    if (role == Qt::ForegroundRole && row.status != PointStatus::Ok)
        return QColor(Qt::darkRed);
    if (role != Qt::DisplayRole)
        return {};
    if (m_cachedRow != index.row()) {
        m_cachedFields = toStringList(sweepRowFields(*m_sweep, row));
        m_cachedRow = index.row();
    }
    return m_cachedFields.value(index.column());
}

QVariant SweepTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    return m_headers.value(section);
}
