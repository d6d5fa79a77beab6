#include "OptionGroup.h"

#include <QButtonGroup>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

OptionGroup::OptionGroup(const QString &groupName, const QString &optionName,
                         const QStringList &captions, QWidget *parent)
    : QFrame(parent)
    , m_buttons(new QButtonGroup(this))
    , m_options(1, nullptr)
{
    setObjectName(groupName);
    setFrameShape(QFrame::StyledPanel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 6);
    layout->setSpacing(4);
    for (const QString &caption : captions) {
        auto *button = new QRadioButton(caption, this);
        const int index = static_cast<int>(m_options.size());
        button->setObjectName(optionName + QLatin1Char('_') + QString::number(index));
        m_buttons->addButton(button, index);
        layout->addWidget(button);
        m_options.push_back(button);
    }
    connect(m_buttons, &QButtonGroup::idClicked, this, &OptionGroup::optionClicked);
}

int OptionGroup::chosen() const
{
    for (int i = 1; i <= count(); ++i) {
        if (m_options[static_cast<size_t>(i)]->isChecked())
            return i;
    }
    return 0;
}

void OptionGroup::setChosen(int index)
{
    const QSignalBlocker blocker(m_buttons);
    if (index >= 1 && index <= count()) {
        option(index)->setChecked(true);
        return;
    }
    // An exclusive group never lets its last chosen button go: lift the rule for the moment.
    m_buttons->setExclusive(false);
    for (int i = 1; i <= count(); ++i)
        option(i)->setChecked(false);
    m_buttons->setExclusive(true);
}

QRadioButton *OptionGroup::option(int index) const
{
    if (index < 1 || index > count())
        return nullptr;
    return m_options[static_cast<size_t>(index)];
}
