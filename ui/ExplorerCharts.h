#pragma once

#include "Sweep.h"

#include <QWidget>

#include <vector>

class QChart;

// A chart of result columns `columns` against the swept input of a one-way sweep: one line per
// result, broken where points were refused or failed. The x axis is logarithmic for a log sweep.
QChart *buildSweepChart(const SweepResult &sweep, const std::vector<int> &columns);

// A two-way sweep as a heat map of one result: the first input across, the second up, each
// point a cell coloured from blue (least) to red (most); refused or failed points are grey.
class HeatMapView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
    // Shows `column` of `sweep` (a two-way sweep), or nothing for a null sweep.
    void setSweep(const SweepResult *sweep, int column);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const SweepResult *m_sweep = nullptr;
    int m_column = 0;
};
