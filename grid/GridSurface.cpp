#include "GridSurface.h"

#include "RdcGridA.h"

#include <QKeyEvent>
#include <QPainter>

GridSurface::GridSurface(RdcGridA *grid)
    : QWidget(grid)
    , m_grid(grid)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true); // the resize cursor follows the pointer over header borders
    setAttribute(Qt::WA_OpaquePaintEvent);
}

QImage &GridSurface::canvas()
{
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = size() * ratio;
    if (m_canvas.size() != pixels || m_canvas.devicePixelRatio() != ratio) {
        m_canvas = QImage(pixels.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
        m_canvas.setDevicePixelRatio(ratio);
        m_canvasReset = true;
    }
    return m_canvas;
}

bool GridSurface::takeCanvasReset()
{
    canvas();
    const bool reset = m_canvasReset;
    m_canvasReset = false;
    return reset;
}

void GridSurface::paintEvent(QPaintEvent *event)
{
    if (takeCanvasReset())
        m_grid->paintSurface();
    QPainter painter(this);
    painter.drawImage(event->rect(), m_canvas,
                      QRectF(QPointF(event->rect().topLeft()) * m_canvas.devicePixelRatio(),
                             QSizeF(event->rect().size()) * m_canvas.devicePixelRatio()));
}

bool GridSurface::event(QEvent *event)
{
    // The grid's own keys win over window shortcuts while the surface has the focus.
    if (event->type() == QEvent::ShortcutOverride
        && m_grid->surfaceShortcut(static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void GridSurface::keyPressEvent(QKeyEvent *event)
{
    m_grid->surfaceKeyPress(event);
}

void GridSurface::mousePressEvent(QMouseEvent *event)
{
    m_grid->surfaceMousePress(event);
}

void GridSurface::mouseMoveEvent(QMouseEvent *event)
{
    m_grid->surfaceMouseMove(event);
}

void GridSurface::mouseReleaseEvent(QMouseEvent *event)
{
    m_grid->surfaceMouseRelease(event);
}

void GridSurface::mouseDoubleClickEvent(QMouseEvent *event)
{
    // A double click is a second press: it must not be lost for selection or resizing.
    m_grid->surfaceMousePress(event);
}

void GridSurface::wheelEvent(QWheelEvent *event)
{
    m_grid->surfaceWheel(event);
}

void GridSurface::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    m_grid->surfaceFocusChanged(true, event->reason());
}

void GridSurface::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    m_grid->surfaceFocusChanged(false, event->reason());
}
