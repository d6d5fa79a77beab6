#include "ChannelPaneDock.h"

#include "ChannelPane.h"
#include "MainMenus.h"

#include <QAction>
#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>

const char *const kChannelDockName = "channelDock";

ChannelPaneDock::ChannelPaneDock(QMainWindow &window, const MainMenus &menus, Prompts &prompts,
                                 std::function<QString()> dataFolder)
{
    m_dock = new QDockWidget(QStringLiteral("Channel"), &window);
    m_dock->setObjectName(QLatin1String(kChannelDockName));
    m_dock->setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
    m_pane = new ChannelPane(prompts, std::move(dataFolder), m_dock);
    m_dock->setWidget(m_pane);
    window.addDockWidget(Qt::RightDockWidgetArea, m_dock);

    m_toggle = menus.mnuView_ChannelPane;
    connect(m_toggle, &QAction::toggled, m_dock, &QDockWidget::setVisible);
    m_toggle->setChecked(!m_dock->isHidden());
    m_dock->installEventFilter(this);
}

bool ChannelPaneDock::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_dock
        && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent))
        m_toggle->setChecked(!m_dock->isHidden());
    return QObject::eventFilter(watched, event);
}
