#pragma once

#include <QWidget>

class QCheckBox;
class QLabel;
class RdcGridA;

// A window with the rating-curve grid and a few controls to exercise it.
class DemoWindow : public QWidget
{
    Q_OBJECT

public:
    explicit DemoWindow(QWidget *parent = nullptr);

    RdcGridA *grid() const { return m_grid; }
    // Fills the grid with the rating curve of a small curb inlet.
    void fillSampleCurve();
    void setGridEnabled(bool enabled);

private:
    void showStatus();

    RdcGridA *m_grid = nullptr;
    QCheckBox *m_enabled = nullptr;
    QCheckBox *m_readOnly = nullptr;
    QLabel *m_status = nullptr;
    int m_changeCount = 0;
};
