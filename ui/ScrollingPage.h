#pragma once

#include <QWidget>

#include <set>

class QScrollBar;

// Whether a control of `height` whose top lies at `top` in the content panel is wholly inside
// the viewport, when the panel's top is at `panelTop` (0 or negative) and the viewport shows
// `viewportHeight` rows of it.
bool IsVisible(int top, int height, int panelTop, int viewportHeight);

// Scrolls `scrollBar` so that the control is shown: a control above the visible band comes to
// the viewport's top edge, one below it to the bottom edge; a visible one stays put.
void MakeVisible(int top, int height, int panelTop, int viewportHeight, QScrollBar &scrollBar);

// One scrolling page of the main window: the fixed viewport picStaionaryWindow(i) with the
// content panel picMovingWindow(i) moving inside it, the scroll bars vscScrollWindow(i) and
// hscScrollWindow(i), and the corner box picScrollButton(i) where both bars meet. Page 0 is the
// Input Data page, page 1 the Results page.
class ScrollingPage : public QWidget
{
    Q_OBJECT

public:
    // Takes `content` as the page's content panel; the page's layout sizes the panel.
    ScrollingPage(int page, QWidget *content, QWidget *parent = nullptr);
    ~ScrollingPage() override;

    int page() const { return m_page; }
    QWidget *picMovingWindow() const { return m_content; }
    QScrollBar *vscScrollWindow() const { return m_vertical; }
    QScrollBar *hscScrollWindow() const { return m_horizontal; }
    QWidget *picScrollButton() const { return m_corner; }

    // Works out which bars the content needs, their ranges and steps, and places them and the
    // corner box. The Results page opens at its top; the Input Data page keeps its place.
    void ArrangeScrollBars();
    // While suspended, a resize of the viewport leaves the bars alone (start-up, before both
    // pages were laid out for the first time).
    void setArrangeSuspended(bool suspended) { m_arrangeSuspended = suspended; }
    bool isArrangeSuspended() const { return m_arrangeSuspended; }

    // Puts the content panel at the origin: both bars to 0.
    void scrollToOrigin();
    // The rows of the content the viewport shows: its height less the horizontal bar, if shown.
    int visibleHeight() const;

    // Scrolls a control of the content panel (or a control inside one of its children, such as
    // an option button inside its group) into view when it is not wholly visible.
    void scrollIntoView(QWidget *control);
    // When `control`, or a widget inside it, receives the focus, scroll it into view.
    void followFocus(QWidget *control);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void onFocusChanged(QWidget *previous, QWidget *now);

    int m_page;
    QWidget *m_content;
    QScrollBar *m_vertical;
    QScrollBar *m_horizontal;
    QWidget *m_corner;
    bool m_arrangeSuspended = false;
    std::set<const QWidget *> m_followed;
};
