// Pictures of the pages in every solution mode, of the window at a small size with its scroll
// bars, and of the Help tab at each help-image size, for a person to look at:
// swale_mode_screenshots OUTPUT_FOLDER. The window uses a temporary settings folder and the
// program folder of the build (for the help images).
#include "GlobalData.h"
#include "InputPage.h"
#include "MainMenus.h"
#include "OptionGroup.h"
#include "RecordingPrompts.h"
#include "ResultsPage.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

void save(QWidget *widget, const QString &folder, const QString &name)
{
    QApplication::processEvents();
    widget->grab().save(folder + QLatin1Char('/') + name + QStringLiteral(".png"));
    QTextStream(stdout) << "saved " << name << ".png\n";
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    if (argc < 2) {
        QTextStream(stderr) << "usage: swale_mode_screenshots OUTPUT_FOLDER\n";
        return 64;
    }
    const QString output = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(output);
    QTemporaryDir settings;
    GlobalData folders;
    folders.programFolder = QApplication::applicationDirPath().toStdString() + "/";
    folders.settingsFolder = settings.path().toStdString() + "/";
    folders.documentsFolder = settings.path().toStdString() + "/";

    RecordingPrompts prompts;
    prompts.setLenient(true);
    frmMain window(prompts, folders);
    window.resize(1000, 800);
    window.show();
    // Focus moves (and the scrolling that follows them) need the window to be the active one.
    QApplication::setActiveWindow(&window);

    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow) {
            window.inputPage()->solutionMethodGroup()->option(method)->click();
            window.inputPage()->channelFlowGroup()->option(flow)->click();
            const QString mode = QStringLiteral("method-%1-flow-%2").arg(method).arg(flow);
            save(window.inputPage(), output, QStringLiteral("input-") + mode);
            save(window.resultsPage(), output, QStringLiteral("results-") + mode);
        }
    }

    window.inputPage()->solutionMethodGroup()->option(1)->click();
    window.inputPage()->channelFlowGroup()->option(1)->click();
    window.resize(560, 420);
    save(&window, output, QStringLiteral("small-input-top"));
    window.txtInput(23)->setFocus();
    save(&window, output, QStringLiteral("small-input-box-23"));
    window.tabs()->setCurrentIndex(1);
    save(&window, output, QStringLiteral("small-results"));

    window.resize(1000, 800);
    window.tabs()->setCurrentIndex(2);
    for (int size = 1; size <= 4; ++size) {
        window.menus().mnuHelp_Image_Size[static_cast<size_t>(size)]->trigger();
        save(&window, output, QStringLiteral("help-size-%1").arg(size));
    }
    return 0;
}
