#pragma once

#include "KeyboardMoves.h"
#include "PageLayout.h"

#include <QObject>

class QWidget;

// Moves the focus between the controls of the Input Data and Results pages with Down, Enter
// and Up, as KeyboardMoves says: it watches the input boxes, the "<- Today" button, the option
// buttons and the output boxes, and consumes the keys that move.
class KeyboardNavigator : public QObject
{
    Q_OBJECT

public:
    KeyboardNavigator(const InputPageControls &input, const ResultsPageControls &results,
                      QObject *parent = nullptr);

    // The chosen option of each group, 0 when none is chosen.
    int solutionMethod() const;
    int channelFlowMethod() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // Where `key` leads from `watched`; Nothing when `watched` is none of the watched controls.
    MoveTarget targetFrom(const QObject *watched, MoveKey key) const;
    QWidget *widgetOf(const MoveTarget &target) const;

    InputPageControls m_input;
    ResultsPageControls m_results;
};
