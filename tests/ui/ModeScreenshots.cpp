// Pictures of the pages in every solution mode, of the window at a small size with its scroll
// bars, and of the Help tab at each help-image size, for a person to look at:
// swale_mode_screenshots OUTPUT_FOLDER. The window uses a temporary settings folder and the
// program folder of the build (for the help images).
#include "InputPage.h"
#include "MainMenus.h"
#include "OptionGroup.h"
#include "ScreenshotSession.h"
#include "ResultsPage.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QRadioButton>
#include <QTabWidget>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ScreenshotSession session;
    if (!session.start(argc, argv, "swale_mode_screenshots"))
        return 64;
    frmMain window(session.prompts, session.folders);
    window.resize(1000, 800);
    window.show();
    // Focus moves (and the scrolling that follows them) need the window to be the active one.
    QApplication::setActiveWindow(&window);

    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow) {
            window.inputPage()->solutionMethodGroup()->option(method)->click();
            window.inputPage()->channelFlowGroup()->option(flow)->click();
            const QString mode = QStringLiteral("method-%1-flow-%2").arg(method).arg(flow);
            session.save(window.inputPage(), QStringLiteral("input-") + mode);
            session.save(window.resultsPage(), QStringLiteral("results-") + mode);
        }
    }

    window.inputPage()->solutionMethodGroup()->option(1)->click();
    window.inputPage()->channelFlowGroup()->option(1)->click();
    window.resize(560, 420);
    session.save(&window, QStringLiteral("small-input-top"));
    window.txtInput(23)->setFocus();
    session.save(&window, QStringLiteral("small-input-box-23"));
    window.tabs()->setCurrentIndex(1);
    session.save(&window, QStringLiteral("small-results"));

    window.resize(1000, 800);
    window.tabs()->setCurrentIndex(2);
    for (int size = 1; size <= 4; ++size) {
        window.menus().mnuHelp_Image_Size[static_cast<size_t>(size)]->trigger();
        session.save(&window, QStringLiteral("help-size-%1").arg(size));
    }
    return 0;
}
