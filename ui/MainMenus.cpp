#include "MainMenus.h"

#include "HelpTopics.h"

#include <QActionGroup>
#include <QIcon>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace {

QAction *addAction(QMenu *menu, const char *name, const QString &caption)
{
    QAction *action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    return action;
}

QAction *addSeparator(QMenu *menu, const char *name)
{
    QAction *separator = menu->addSeparator();
    separator->setObjectName(QLatin1String(name));
    return separator;
}

// Four exclusive, checkable size entries named `name`_1 to _4.
void addSizeEntries(QMenu *menu, const char *name, const QStringList &captions,
                    std::array<QAction *, 5> &entries)
{
    auto *group = new QActionGroup(menu);
    for (int size = 1; size <= 4; ++size) {
        QAction *entry = menu->addAction(captions.at(size - 1));
        entry->setObjectName(QLatin1String(name) + QLatin1Char('_') + QString::number(size));
        entry->setCheckable(true);
        group->addAction(entry);
        entries[static_cast<size_t>(size)] = entry;
    }
}

// A toolbar icon from the desktop's icon theme, or the program's own where the theme has none.
QIcon toolbarIcon(const char *themeName, const char *fallback)
{
    return QIcon::fromTheme(QLatin1String(themeName), QIcon(QLatin1String(fallback)));
}

void buildFileMenu(QMainWindow &window, MainMenus &menus)
{
    QMenu *file = window.menuBar()->addMenu(QStringLiteral("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    menus.mnuFile = file;
    menus.mnuFile_New = addAction(file, "mnuFile_New", QStringLiteral("&New"));
    menus.mnuFile_Open = addAction(file, "mnuFile_Open", QStringLiteral("&Open"));
    menus.mnuFile_Save = addAction(file, "mnuFile_Save", QStringLiteral("&Save"));
    menus.mnuFile_SaveAs = addAction(file, "mnuFile_SaveAs", QStringLiteral("Save &As"));
    addSeparator(file, "mnuFile_Separator1");
    menus.mnuFile_Print = addAction(file, "mnuFile_Print", QStringLiteral("&Print"));
    menus.mnuFile_ExportPdf
            = addAction(file, "mnuFile_ExportPdf", QStringLiteral("Export P&DF..."));
    menus.mnuFile_PrintPreview
            = addAction(file, "mnuFile_PrintPreview", QStringLiteral("Print Pre&view..."));
    menus.mnuFile_PrintSetup = addAction(file, "mnuFile_PrintSetup", QStringLiteral("Page Set&up"));
    addSeparator(file, "mnuFile_Separator2");
    for (int i = 1; i <= 5; ++i) {
        QAction *recent = file->addAction(QStringLiteral("Recent File %1").arg(i));
        recent->setObjectName(QStringLiteral("mnuFile_Recent_%1").arg(i));
        menus.mnuFile_Recent[static_cast<size_t>(i)] = recent;
    }
    menus.mnuFile_Separator3 = addSeparator(file, "mnuFile_Separator3");
    menus.cmdFile_Example = addAction(file, "cmdFile_Example", QStringLiteral("Example..."));
    addSeparator(file, "mnuFile_Separator4");
    menus.mnuFile_Exit = addAction(file, "mnuFile_Exit", QStringLiteral("&Exit"));
    menus.mnuFile_New->setShortcut(QKeySequence::New);
    menus.mnuFile_Open->setShortcut(QKeySequence::Open);
    menus.mnuFile_Save->setShortcut(QKeySequence::Save);
    menus.mnuFile_Print->setShortcut(QKeySequence::Print);
}

void buildViewMenu(QMainWindow &window, MainMenus &menus)
{
    QMenu *view = window.menuBar()->addMenu(QStringLiteral("&View"));
    view->setObjectName(QStringLiteral("mnuView"));
    menus.mnuView = view;
    menus.mnuView_ChannelPane
            = addAction(view, "mnuView_ChannelPane", QStringLiteral("&Channel Pane"));
    menus.mnuView_ChannelPane->setCheckable(true);
    menus.mnuView_DesignExplorer
            = addAction(view, "mnuView_DesignExplorer", QStringLiteral("&Design Explorer..."));
}

void buildHelpMenus(QMainWindow &window, MainMenus &menus)
{
    QMenu *help = window.menuBar()->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    menus.mnuHelp = help;
    for (const HelpTopic &topic : kHelpTopics) {
        QAction *entry = help->addAction(QString::fromUtf8(topic.title));
        entry->setObjectName(QLatin1String("mnuHelp_Topic_") + QLatin1String(topic.file));
        entry->setData(QString::fromUtf8(topic.file));
        menus.helpTopics.push_back(entry);
    }
    addSeparator(help, "mnuHelp_TopicSeparator");
    menus.mnuHelp_Image = help->addMenu(QStringLiteral("Help Image Si&ze"));
    menus.mnuHelp_Image->setObjectName(QStringLiteral("mnuHelp_Image"));
    addSizeEntries(menus.mnuHelp_Image, "mnuHelp_Image_Size",
                   { QStringLiteral("&Small"), QStringLiteral("&Medium"), QStringLiteral("&Large"),
                     QStringLiteral("L&argest") },
                   menus.mnuHelp_Image_Size);
    menus.mnuHelp_About = addAction(help, "mnuHelp_About", QStringLiteral("&About"));

    menus.mnuHelpImage = new QMenu(QStringLiteral("Help Image"), &window);
    menus.mnuHelpImage->setObjectName(QStringLiteral("mnuHelpImage"));
    QMenu *sizes = menus.mnuHelpImage->addMenu(QStringLiteral("Image Size"));
    sizes->setObjectName(QStringLiteral("mnuHelpImage_Image"));
    addSizeEntries(sizes, "mnuHelpImage_Image_Size",
                   { QStringLiteral("Small"), QStringLiteral("Medium"), QStringLiteral("Large"),
                     QStringLiteral("Largest") },
                   menus.mnuHelpImage_Image_Size);
    menus.mnuHelpImage_Copy
            = addAction(menus.mnuHelpImage, "mnuHelpImage_Copy", QStringLiteral("Copy"));
}

void buildToolbar(QMainWindow &window, MainMenus &menus)
{
    QToolBar *toolbar = window.addToolBar(QStringLiteral("Toolbar"));
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setMovable(false);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    toolbar->setIconSize(QSize(24, 24));
    struct Button
    {
        const char *tag;
        const char *theme;
        const char *fallback;
    };
    const Button buttons[] = {
        { "New", "document-new", ":/icons/document-new.svg" },
        { "Open", "document-open", ":/icons/document-open.svg" },
        { "Save", "document-save", ":/icons/document-save.svg" },
        { "Print", "document-print", ":/icons/document-print.svg" },
    };
    for (int i = 1; i <= 4; ++i) {
        const Button &button = buttons[i - 1];
        QAction *action = toolbar->addAction(toolbarIcon(button.theme, button.fallback),
                                             QLatin1String(button.tag));
        action->setObjectName(QLatin1String("Toolbar1_") + QLatin1String(button.tag));
        action->setData(QLatin1String(button.tag));
        menus.toolbarButtons[static_cast<size_t>(i)] = action;
    }
    menus.Toolbar1 = toolbar;
}

} // namespace

MainMenus buildMainMenus(QMainWindow &window)
{
    MainMenus menus;
    buildFileMenu(window, menus);
    buildViewMenu(window, menus);
    buildHelpMenus(window, menus);
    buildToolbar(window, menus);
    return menus;
}
