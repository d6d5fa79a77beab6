#pragma once

#include "Sweep.h"

#include <QAbstractTableModel>

// The design explorer's table: one row per calculated point, the swept inputs as typed, the
// status, the result texts as the results page shows them, and the message of a refused or
// failed point. Headers are the captions with their units, as the CSV export writes them.
class SweepTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setSweep(const SweepResult *sweep);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const SweepResult *m_sweep = nullptr;
    int m_rows = 0; // calculated rows: a cancelled sweep shows the points it reached
    QStringList m_headers;
    mutable int m_cachedRow = -1;
    mutable QStringList m_cachedFields;
};
