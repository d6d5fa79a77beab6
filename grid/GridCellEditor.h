#pragma once

#include <QLineEdit>

class RdcGridA;

// The grid's in-place editor ("txt"): a frameless line edit laid over the current cell. Enter,
// Escape, Up and Down and the loss of focus go to the grid, which ends the edit.
class GridCellEditor : public QLineEdit
{
    Q_OBJECT

public:
    GridCellEditor(RdcGridA *grid, QWidget *surface);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;

private:
    RdcGridA *m_grid;
};
