// Pictures of the program for a person to look at without clicking through it:
// swale_screenshots OUTPUT_FOLDER. The four examples on the input and results pages, both pages
// in every solution mode, the window at a small size with its scroll bars, the Help tab at each
// help-image size, the help viewer and the About box. Runs on any Qt platform (offscreen or a
// virtual X display); the window uses a temporary settings folder, the build's program folder
// (help images, examples) and prompts that answer every message with OK and cancel every dialog.
#include "GlobalData.h"
#include "HelpViewer.h"
#include "InputPage.h"
#include "MainMenus.h"
#include "OptionGroup.h"
#include "RecordingPrompts.h"
#include "ResultsPage.h"
#include "ScrollingPage.h"
#include "frmAbout.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QDir>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

QString outputFolder;

// Lets pending events run, then saves `widget` as NAME.png in the output folder.
void save(QWidget *widget, const QString &name)
{
    QApplication::processEvents();
    widget->grab().save(outputFolder + QLatin1Char('/') + name + QStringLiteral(".png"));
    QTextStream(stdout) << "saved " << name << ".png\n";
}

void examplesTour(frmMain &window)
{
    const QString examples = QApplication::applicationDirPath() + QStringLiteral("/Examples/");
    const QStringList projects = {
        QStringLiteral("Roadside swale - required length.swl"),
        QStringLiteral("Parking lot swale - efficiency of given length.swl"),
        QStringLiteral("Median ditch - inlet interception.swl"),
        QStringLiteral("Lined roadside ditch - capacity check.swl"),
    };
    for (int method = 1; method <= projects.size(); ++method) {
        window.OpenDataFile(examples + projects.at(method - 1), OpenExample);
        save(&window, QStringLiteral("input-method-%1").arg(method));
        QScrollBar *bar = window.page(0)->vscScrollWindow();
        bar->setValue(bar->maximum());
        save(&window, QStringLiteral("input-method-%1-end").arg(method));
        bar->setValue(0);
        window.calculateButton()->click();
        save(&window, QStringLiteral("results-method-%1").arg(method));
    }
    window.OpenDataFile(examples + projects.at(0), OpenExample); // leave without a question
}

void modesTour(frmMain &window)
{
    for (int method = 1; method <= 4; ++method) {
        for (int flow = 1; flow <= 2; ++flow) {
            window.inputPage()->solutionMethodGroup()->option(method)->click();
            window.inputPage()->channelFlowGroup()->option(flow)->click();
            const QString mode = QStringLiteral("method-%1-flow-%2").arg(method).arg(flow);
            save(window.inputPage(), QStringLiteral("mode-input-") + mode);
            save(window.resultsPage(), QStringLiteral("mode-results-") + mode);
        }
    }
    window.inputPage()->solutionMethodGroup()->option(1)->click();
    window.inputPage()->channelFlowGroup()->option(1)->click();
    window.resize(560, 420);
    save(&window, QStringLiteral("small-input-top"));
    window.txtInput(23)->setFocus();
    save(&window, QStringLiteral("small-input-box-23"));
    window.tabs()->setCurrentIndex(1);
    save(&window, QStringLiteral("small-results"));
    window.resize(1100, 820);
    window.tabs()->setCurrentIndex(2);
    for (int size = 1; size <= 4; ++size) {
        window.menus().mnuHelp_Image_Size[static_cast<size_t>(size)]->trigger();
        save(&window, QStringLiteral("help-size-%1").arg(size));
    }
    window.tabs()->setCurrentIndex(0);
}

void dialogsTour(frmMain &window)
{
    window.showHelpTopic(1);
    if (auto *help = window.findChild<HelpViewer *>()) {
        save(help, QStringLiteral("help-1"));
        window.showHelpTopic(2);
        save(help, QStringLiteral("help-2"));
    }
    frmAbout about(window.versionText(), &window);
    about.show();
    save(&about, QStringLiteral("about"));
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    if (argc < 2) {
        QTextStream(stderr) << "usage: swale_screenshots OUTPUT_FOLDER\n";
        return 64;
    }
    outputFolder = QString::fromLocal8Bit(argv[1]);
    QDir().mkpath(outputFolder);
    QTemporaryDir settings;
    GlobalData folders;
    folders.programFolder = QApplication::applicationDirPath().toStdString() + "/";
    folders.settingsFolder = settings.path().toStdString() + "/";
    folders.documentsFolder = folders.settingsFolder;
    RecordingPrompts prompts;
    prompts.setLenient(true);

    frmMain window(prompts, folders);
    window.resize(1100, 820);
    window.show();
    // Focus moves (and the scrolling that follows them) need the window to be the active one.
    QApplication::setActiveWindow(&window);
    examplesTour(window);
    modesTour(window);
    dialogsTour(window);
    for (const QString &message : prompts.messages())
        QTextStream(stdout) << "message: " << message << "\n";
    return 0;
}
