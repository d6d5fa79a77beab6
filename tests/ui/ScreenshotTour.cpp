// Drives the main window through its pages and saves a picture of each, for looking at the
// program without clicking through it: swale_screenshots OUTPUT_FOLDER. Runs on any Qt platform
// (offscreen or a virtual X display); the window uses a temporary settings folder.
#include "HelpViewer.h"
#include "InputPage.h"
#include "OptionGroup.h"
#include "ScreenshotSession.h"
#include "ScrollingPage.h"
#include "frmAbout.h"
#include "frmMain.h"

#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ScreenshotSession session;
    if (!session.start(argc, argv, "swale_screenshots"))
        return 64;
    frmMain window(session.prompts, session.folders);
    window.resize(1100, 820);
    window.show();

    const QString examples = QApplication::applicationDirPath() + QStringLiteral("/Examples/");
    const QStringList projects = {
        QStringLiteral("Roadside swale - required length.swl"),
        QStringLiteral("Parking lot swale - efficiency of given length.swl"),
        QStringLiteral("Median ditch - inlet interception.swl"),
        QStringLiteral("Lined roadside ditch - capacity check.swl"),
    };
    for (int method = 1; method <= projects.size(); ++method) {
        window.OpenDataFile(examples + projects.at(method - 1), OpenExample);
        session.save(&window, QStringLiteral("input-method-%1").arg(method));
        QScrollBar *bar = window.page(0)->vscScrollWindow();
        bar->setValue(bar->maximum());
        session.save(&window, QStringLiteral("input-method-%1-end").arg(method));
        bar->setValue(0);
        window.calculateButton()->click();
        session.save(&window, QStringLiteral("results-method-%1").arg(method));
    }
    window.inputPage()->channelFlowGroup()->option(2)->click();
    session.save(&window, QStringLiteral("input-method-4-flow-rate"));

    window.tabs()->setCurrentIndex(2);
    session.save(&window, QStringLiteral("help-tab"));
    window.tabs()->setCurrentIndex(0);
    window.showHelpTopic(1);
    auto *help = window.findChild<HelpViewer *>();
    if (help) {
        session.save(help, QStringLiteral("help-1"));
        window.showHelpTopic(2);
        session.save(help, QStringLiteral("help-2"));
    }
    frmAbout about(window.versionText(), &window);
    about.show();
    session.save(&about, QStringLiteral("about"));
    for (const QString &message : session.prompts.messages())
        QTextStream(stdout) << "message: " << message << "\n";
    window.OpenDataFile(examples + projects.at(0), OpenExample); // leave without a question
    return 0;
}
