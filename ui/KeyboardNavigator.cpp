#include "KeyboardNavigator.h"

#include "tvrEditBox.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

template<size_t N>
int chosenOption(const std::array<QAbstractButton *, N> &options)
{
    for (size_t i = 1; i < N; ++i) {
        if (options[i] && options[i]->isChecked())
            return static_cast<int>(i);
    }
    return 0;
}

// The index of the element of `controls` that `watched` is (or whose editor it is); 0 for none.
template<size_t N>
int indexOf(const std::array<tvrEditBox *, N> &controls, const QObject *watched)
{
    for (size_t i = 1; i < N; ++i) {
        if (controls[i] && (controls[i] == watched || controls[i]->editor() == watched))
            return static_cast<int>(i);
    }
    return 0;
}

template<size_t N>
int indexOf(const std::array<QAbstractButton *, N> &controls, const QObject *watched)
{
    for (size_t i = 1; i < N; ++i) {
        if (controls[i] && controls[i] == watched)
            return static_cast<int>(i);
    }
    return 0;
}

bool moveKeyOf(const QKeyEvent &event, MoveKey &key)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier))
        return false;
    switch (event.key()) {
    case Qt::Key_Down:
        key = MoveKey::Down;
        return true;
    case Qt::Key_Up:
        key = MoveKey::Up;
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        key = MoveKey::Enter;
        return true;
    default:
        return false;
    }
}

} // namespace

KeyboardNavigator::KeyboardNavigator(const InputPageControls &input,
                                     const ResultsPageControls &results, QObject *parent)
    : QObject(parent)
    , m_input(input)
    , m_results(results)
{
    for (size_t i = 1; i < m_input.txtInput.size(); ++i)
        m_input.txtInput[i]->editor()->installEventFilter(this);
    for (size_t i = 1; i < m_results.txtOutput.size(); ++i)
        m_results.txtOutput[i]->editor()->installEventFilter(this);
    for (size_t i = 1; i < m_input.optCalculate.size(); ++i)
        m_input.optCalculate[i]->installEventFilter(this);
    for (size_t i = 1; i < m_input.optChannelFlow.size(); ++i)
        m_input.optChannelFlow[i]->installEventFilter(this);
    m_input.cmdToday->installEventFilter(this);
}

int KeyboardNavigator::solutionMethod() const
{
    return chosenOption(m_input.optCalculate);
}

int KeyboardNavigator::channelFlowMethod() const
{
    return chosenOption(m_input.optChannelFlow);
}

bool KeyboardNavigator::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    MoveKey key = MoveKey::Down;
    if (!moveKeyOf(*static_cast<QKeyEvent *>(event), key))
        return false;
    const MoveTarget target = targetFrom(watched, key);
    QWidget *widget = widgetOf(target);
    if (!widget)
        return false;
    // A move by key shows where the focus went, as Tab does: the window then draws the focus
    // mark (an option button has no caret to show it otherwise). The reason stays "other" so
    // that a box keeps its caret instead of selecting its whole text.
    widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    widget->setFocus(Qt::OtherFocusReason);
    return true;
}

MoveTarget KeyboardNavigator::targetFrom(const QObject *watched, MoveKey key) const
{
    if (const int box = indexOf(m_input.txtInput, watched))
        return KeyboardMoves::fromInputBox(box, key, solutionMethod(), channelFlowMethod());
    if (const int box = indexOf(m_results.txtOutput, watched))
        return KeyboardMoves::fromOutputBox(box, key, solutionMethod(), channelFlowMethod());
    if (indexOf(m_input.optCalculate, watched))
        return KeyboardMoves::fromSolutionMethodOption(key, solutionMethod());
    if (indexOf(m_input.optChannelFlow, watched))
        return KeyboardMoves::fromChannelFlowOption(key, channelFlowMethod());
    if (watched == m_input.cmdToday)
        return KeyboardMoves::fromTodayButton(key);
    return {};
}

QWidget *KeyboardNavigator::widgetOf(const MoveTarget &target) const
{
    const auto index = static_cast<size_t>(target.index);
    switch (target.kind) {
    case MoveTarget::Kind::InputBox:
        return m_input.txtInput[index];
    case MoveTarget::Kind::OutputBox:
        return m_results.txtOutput[index];
    case MoveTarget::Kind::SolutionMethodOption:
        return m_input.optCalculate[index];
    case MoveTarget::Kind::ChannelFlowOption:
        return m_input.optChannelFlow[index];
    case MoveTarget::Kind::RatingCurveGrid:
        return m_input.grdRatingCurve;
    case MoveTarget::Kind::Nothing:
        break;
    }
    return nullptr;
}
