#pragma once

#include <QFrame>

#include <vector>

class QButtonGroup;
class QRadioButton;

// A frame of option buttons numbered from 1 (grpSolutionMethod with optCalculate(1..4),
// grpChannelFlow with optChannelFlow(1..2)). At most one is chosen; 0 means none, which a new
// window or a file with an unknown index can leave.
class OptionGroup : public QFrame
{
    Q_OBJECT

public:
    // `groupName` names the frame, `optionName` + "_" + i each button.
    OptionGroup(const QString &groupName, const QString &optionName, const QStringList &captions,
                QWidget *parent = nullptr);

    int count() const { return static_cast<int>(m_options.size()) - 1; }
    // The first chosen button, scanning from 1; 0 when none is chosen.
    int chosen() const;
    // Chooses button `index` without raising optionClicked; 0 (or an index outside the group)
    // leaves every button unchosen.
    void setChosen(int index);
    QRadioButton *option(int index) const;

signals:
    // The user (or a click() call) chose button `index`.
    void optionClicked(int index);

private:
    QButtonGroup *m_buttons;
    std::vector<QRadioButton *> m_options; // [0] unused: buttons are numbered from 1
};
