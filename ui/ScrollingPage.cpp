#include "ScrollingPage.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QScrollBar>
#include <QWheelEvent>

namespace {

// The share of the visible band that one page step of a bar scrolls.
constexpr double kPageStepShare = 0.8;

// A wheel tells its turn in eighths of a degree: 120 to a notch.
constexpr int kAnglePerNotch = 120;

QString pageControlName(const char *arrayName, int page)
{
    return QLatin1String(arrayName) + QLatin1Char('_') + QString::number(page);
}

// Moves `bar` by `pixels` of the content, when it is shown.
void scrollBarBy(QScrollBar *bar, QWidget *page, int pixels)
{
    if (pixels != 0 && bar->isVisibleTo(page))
        bar->setValue(bar->value() + pixels);
}

} // namespace

bool IsVisible(int top, int height, int panelTop, int viewportHeight)
{
    const int bandTop = -panelTop;
    const int bandBottom = viewportHeight - panelTop - 1;
    return top >= bandTop && top + height - 1 <= bandBottom;
}

void MakeVisible(int top, int height, int panelTop, int viewportHeight, QScrollBar &scrollBar)
{
    if (top < -panelTop) {
        scrollBar.setValue(top);
        return;
    }
    // The control's last row lands on the viewport's last row.
    const int bottom = top + height;
    if (bottom - 1 > viewportHeight - panelTop - 1)
        scrollBar.setValue(bottom - viewportHeight);
}

ScrollingPage::ScrollingPage(QWidget *content, Behaviour behaviour, QWidget *parent)
    : QWidget(parent)
    , m_behaviour(behaviour)
    , m_content(content)
    , m_vertical(new QScrollBar(Qt::Vertical, this))
    , m_horizontal(new QScrollBar(Qt::Horizontal, this))
    , m_corner(new QWidget(this))
{
    m_content->setParent(this);
    m_content->move(0, 0);
    m_corner->setAutoFillBackground(true);
    m_corner->setBackgroundRole(QPalette::Window);
    for (QWidget *control :
         { static_cast<QWidget *>(m_vertical), static_cast<QWidget *>(m_horizontal), m_corner }) {
        control->hide();
        control->raise();
    }
    // The bars move the panel while they are dragged as well as when they settle.
    for (QScrollBar *bar : { m_vertical, m_horizontal }) {
        connect(bar, &QScrollBar::valueChanged, this,
                [this, bar](int value) { moveContent(bar->orientation(), value); });
    }
}

// The followed controls live inside the content panel and outlast this part of the page while
// its children are deleted, and deleting them moves the focus: they stop reporting to the page
// first.
ScrollingPage::~ScrollingPage()
{
    for (const QPointer<QWidget> &widget : m_watched) {
        if (widget)
            widget->removeEventFilter(this);
    }
}

void ScrollingPage::nameControls(int page)
{
    setObjectName(pageControlName("picStaionaryWindow", page));
    m_content->setObjectName(pageControlName("picMovingWindow", page));
    m_vertical->setObjectName(pageControlName("vscScrollWindow", page));
    m_horizontal->setObjectName(pageControlName("hscScrollWindow", page));
    m_corner->setObjectName(pageControlName("picScrollButton", page));
}

void ScrollingPage::ArrangeScrollBars()
{
    int W = width();
    int H = height();
    const int CW = m_content->width();
    const int CH = m_content->height();
    const int barWidth = m_vertical->sizeHint().width();
    const int barHeight = m_horizontal->sizeHint().height();

    bool horizontalNeeded = false;
    bool verticalNeeded = false;
    if (CW > W) {
        horizontalNeeded = true;
        H -= barHeight;
    }
    if (CH > H) {
        verticalNeeded = true;
        W -= barWidth;
        // The vertical bar narrows the view: now the width may no longer fit either.
        if (!horizontalNeeded && CW > W) {
            horizontalNeeded = true;
            H -= barHeight;
        }
    }

    const QFontMetrics metrics(font());
    arrangeBar(m_vertical, verticalNeeded, H, CH, metrics.height(), QRect(W, 0, barWidth, H));
    arrangeBar(m_horizontal, horizontalNeeded, W, CW, metrics.horizontalAdvance(QLatin1Char('X')),
               QRect(0, H, W, barHeight));

    if (m_vertical->isVisibleTo(this) && m_horizontal->isVisibleTo(this)) {
        m_corner->setGeometry(W, H, barWidth, barHeight);
        m_corner->show();
    } else {
        m_corner->hide();
    }
}

// One bar, vertical or horizontal: `viewExtent` is the viewport's height (width) left by the
// other bar, `contentExtent` the panel's, `place` the bar's rectangle at the viewport's edge.
// A bar that is not needed, or has no room, is hidden and the panel goes back to that edge.
void ScrollingPage::arrangeBar(QScrollBar *bar, bool needed, int viewExtent, int contentExtent,
                               int singleStep, const QRect &place)
{
    const Qt::Orientation orientation = bar->orientation();
    const int thickness = orientation == Qt::Vertical ? place.width() : place.height();
    if (needed && viewExtent >= 1 && thickness >= 1) {
        bar->setRange(0, contentExtent - viewExtent);
        if (m_behaviour == Behaviour::OpensAtTop)
            bar->setValue(0);
        bar->setSingleStep(singleStep);
        bar->setPageStep(static_cast<int>(kPageStepShare * viewExtent));
        bar->setGeometry(place);
        bar->show();
        moveContent(orientation, bar->value());
    } else {
        bar->hide();
        const QSignalBlocker blocker(bar);
        bar->setValue(0);
        moveContent(orientation, 0);
    }
}

void ScrollingPage::moveContent(Qt::Orientation orientation, int value)
{
    if (orientation == Qt::Vertical)
        m_content->move(m_content->x(), -value);
    else
        m_content->move(-value, m_content->y());
}

void ScrollingPage::scrollToOrigin()
{
    m_vertical->setValue(0);
    m_horizontal->setValue(0);
    m_content->move(0, 0);
}

int ScrollingPage::visibleHeight() const
{
    return height() - (m_horizontal->isVisibleTo(this) ? m_horizontal->height() : 0);
}

void ScrollingPage::scrollIntoView(QWidget *control)
{
    if (!control || !m_content->isAncestorOf(control))
        return;
    const int top = control->mapTo(m_content, QPoint(0, 0)).y();
    const int panelTop = m_content->y();
    if (!IsVisible(top, control->height(), panelTop, visibleHeight()))
        MakeVisible(top, control->height(), panelTop, visibleHeight(), *m_vertical);
}

// The focus lands on the innermost widget (the edit field of a labelled box, the drawing
// surface of the grid), so the page watches every widget inside a followed control.
void ScrollingPage::followFocus(QWidget *control)
{
    m_followed.insert(control);
    watch(control);
    for (QWidget *inner : control->findChildren<QWidget *>())
        watch(inner);
}

void ScrollingPage::watch(QWidget *widget)
{
    widget->installEventFilter(this);
    m_watched.emplace_back(widget);
}

QWidget *ScrollingPage::followedControlOf(QObject *watched) const
{
    for (QWidget *widget = qobject_cast<QWidget *>(watched); widget && widget != m_content;
         widget = widget->parentWidget()) {
        if (m_followed.count(widget))
            return widget;
    }
    return nullptr;
}

bool ScrollingPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        // The window being activated again hands the focus back to the box that had it, and a
        // closed pop-up menu does the same: neither is the user moving to that box.
        const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            scrollIntoView(followedControlOf(watched));
    }
    return QWidget::eventFilter(watched, event);
}

void ScrollingPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!m_arrangeSuspended)
        ArrangeScrollBars();
}

// Wheel events reach the page from every control over it that does not scroll itself. A
// touchpad tells the distance in pixels, the content's own unit; a wheel tells its turn, and a
// notch scrolls the desktop's number of lines (three by default) of the bar's small step.
void ScrollingPage::wheelEvent(QWheelEvent *event)
{
    QPoint pixels = event->pixelDelta();
    if (pixels.isNull()) {
        const QPoint angle = event->angleDelta();
        const int lines = QApplication::wheelScrollLines();
        pixels = QPoint(angle.x() * lines * m_horizontal->singleStep() / kAnglePerNotch,
                        angle.y() * lines * m_vertical->singleStep() / kAnglePerNotch);
    }
    // Turning the wheel towards the user (a negative delta) moves down the page.
    scrollBarBy(m_vertical, this, -pixels.y());
    scrollBarBy(m_horizontal, this, -pixels.x());
    event->accept();
}
