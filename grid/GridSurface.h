#pragma once

#include <QImage>
#include <QWidget>

class RdcGridA;

// The grid's drawing surface ("pic"). It keeps what the grid painted in an image, as a picture
// box keeps its drawing, so that a single cell can be repainted (or a guide line inverted) without
// redrawing the rest; its paint event only shows the image. Mouse, keyboard and focus events go
// to the grid.
class GridSurface : public QWidget
{
    Q_OBJECT

public:
    explicit GridSurface(RdcGridA *grid);

    // The image that the grid paints on, the size of the surface. It is recreated (blank) when
    // the surface's size changed; takeCanvasReset() then reports true once.
    QImage &canvas();
    bool takeCanvasReset();

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    RdcGridA *m_grid;
    QImage m_canvas;
    bool m_canvasReset = false;
};
