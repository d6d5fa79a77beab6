#include "ChannelPaneDock.h"

#include "ChannelPane.h"
#include "MainMenus.h"

#include <QAction>
#include <QDockWidget>
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

    QAction *toggle = menus.mnuView_ChannelPane;
    QObject::connect(toggle, &QAction::toggled, m_dock, &QDockWidget::setVisible);
    QObject::connect(m_dock, &QDockWidget::visibilityChanged, toggle, [this, toggle] {
        // visibilityChanged also fires when a tabbed dock is covered: ask the dock itself.
        toggle->setChecked(!m_dock->isHidden());
    });
    toggle->setChecked(!m_dock->isHidden());
}
