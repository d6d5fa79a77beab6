#include "ScrollingPage.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScrollBar>
#include <QStyle>

namespace {

constexpr int kResultsPage = 1;

// The share of the visible band that one page step of a bar scrolls.
constexpr double kPageStepShare = 0.8;

QString pageControlName(const char *arrayName, int page)
{
    return QLatin1String(arrayName) + QLatin1Char('_') + QString::number(page);
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

ScrollingPage::ScrollingPage(int page, QWidget *content, QWidget *parent)
    : QWidget(parent), m_page(page), m_content(content),
      m_vertical(new QScrollBar(Qt::Vertical, this)),
      m_horizontal(new QScrollBar(Qt::Horizontal, this)), m_corner(new QWidget(this))
{
    setObjectName(pageControlName("picStaionaryWindow", page));
    m_content->setParent(this);
    m_content->setObjectName(pageControlName("picMovingWindow", page));
    m_content->move(0, 0);
    m_vertical->setObjectName(pageControlName("vscScrollWindow", page));
    m_horizontal->setObjectName(pageControlName("hscScrollWindow", page));
    m_corner->setObjectName(pageControlName("picScrollButton", page));
    m_corner->setAutoFillBackground(true);
    m_corner->setBackgroundRole(QPalette::Window);
    for (QWidget *control : { static_cast<QWidget *>(m_vertical),
                              static_cast<QWidget *>(m_horizontal), m_corner }) {
        control->hide();
        control->raise();
    }
    // The bars move the panel while they are dragged as well as when they settle.
    connect(m_vertical, &QScrollBar::valueChanged, this,
            [this](int value) { m_content->move(m_content->x(), -value); });
    connect(m_horizontal, &QScrollBar::valueChanged, this,
            [this](int value) { m_content->move(-value, m_content->y()); });
    connect(qApp, &QApplication::focusChanged, this, &ScrollingPage::onFocusChanged);
}

// Deleting the page's children moves the focus, and QObject would cut the connection only after
// this page had stopped being a ScrollingPage: cut it first.
ScrollingPage::~ScrollingPage()
{
    disconnect(qApp, nullptr, this, nullptr);
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
    if (verticalNeeded && H >= 1 && barWidth >= 1) {
        m_vertical->setRange(0, CH - H);
        if (m_page == kResultsPage)
            m_vertical->setValue(0);
        m_vertical->setSingleStep(metrics.height());
        m_vertical->setPageStep(static_cast<int>(kPageStepShare * H));
        m_vertical->setGeometry(W, 0, barWidth, H);
        m_vertical->show();
        m_content->move(m_content->x(), -m_vertical->value());
    } else {
        m_vertical->hide();
        const QSignalBlocker blocker(m_vertical);
        m_vertical->setValue(0);
        m_content->move(m_content->x(), 0);
    }

    if (horizontalNeeded && W >= 1 && barHeight >= 1) {
        m_horizontal->setRange(0, CW - W);
        if (m_page == kResultsPage)
            m_horizontal->setValue(0);
        m_horizontal->setSingleStep(metrics.horizontalAdvance(QLatin1Char('X')));
        m_horizontal->setPageStep(static_cast<int>(kPageStepShare * W));
        m_horizontal->setGeometry(0, H, W, barHeight);
        m_horizontal->show();
        m_content->move(-m_horizontal->value(), m_content->y());
    } else {
        m_horizontal->hide();
        const QSignalBlocker blocker(m_horizontal);
        m_horizontal->setValue(0);
        m_content->move(0, m_content->y());
    }

    if (m_vertical->isVisibleTo(this) && m_horizontal->isVisibleTo(this)) {
        m_corner->setGeometry(W, H, barWidth, barHeight);
        m_corner->show();
    } else {
        m_corner->hide();
    }
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

void ScrollingPage::followFocus(QWidget *control)
{
    m_followed.insert(control);
}

void ScrollingPage::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (!m_arrangeSuspended)
        ArrangeScrollBars();
}

void ScrollingPage::onFocusChanged(QWidget *, QWidget *now)
{
    for (QWidget *widget = now; widget && widget != m_content; widget = widget->parentWidget()) {
        if (m_followed.count(widget)) {
            scrollIntoView(widget);
            return;
        }
    }
}
