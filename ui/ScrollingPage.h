#pragma once

#include <QPointer>
#include <QWidget>

#include <set>
#include <vector>

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
// hscScrollWindow(i), and the corner box picScrollButton(i) where both bars meet.
//
// The mouse wheel and the touchpad scroll the page wherever the pointer is over it, except over
// a control that scrolls itself (the rating-curve grid).
class ScrollingPage : public QWidget
{
    Q_OBJECT

public:
    // What a relayout does to the scroll position: the Input Data page keeps its place, the
    // Results page opens at its top.
    enum class Behaviour { KeepsItsPlace, OpensAtTop };

    // Takes `content` as the page's content panel; the page's layout sizes the panel.
    ScrollingPage(QWidget *content, Behaviour behaviour, QWidget *parent = nullptr);
    ~ScrollingPage() override;

    Behaviour behaviour() const { return m_behaviour; }
    // Names the page's controls after their control arrays with index `page`:
    // picStaionaryWindow_<page>, picMovingWindow_<page> and so on.
    void nameControls(int page);
    QWidget *picMovingWindow() const { return m_content; }
    QScrollBar *vscScrollWindow() const { return m_vertical; }
    QScrollBar *hscScrollWindow() const { return m_horizontal; }
    QWidget *picScrollButton() const { return m_corner; }

    // Works out which bars the content needs, their ranges and steps, and places them and the
    // corner box; a page that opens at its top goes back there.
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
    // When `control`, or a widget inside it, receives the focus from the user or the program,
    // scroll it into view. A focus that only comes back because the window was activated again
    // (after a message box, or from another program) or a pop-up menu closed leaves the page
    // where it is.
    void followFocus(QWidget *control);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void arrangeBar(QScrollBar *bar, bool needed, int viewExtent, int contentExtent, int singleStep,
                    const QRect &place);
    void moveContent(Qt::Orientation orientation, int value);
    QWidget *followedControlOf(QObject *watched) const;
    void watch(QWidget *widget);

    Behaviour m_behaviour;
    QWidget *m_content;
    QScrollBar *m_vertical;
    QScrollBar *m_horizontal;
    QWidget *m_corner;
    bool m_arrangeSuspended = false;
    std::set<const QWidget *> m_followed;
    std::vector<QPointer<QWidget>> m_watched; // the followed controls and the widgets inside them
};
