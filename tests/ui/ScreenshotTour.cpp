// Drives the main window through its pages and saves a picture of each, for looking at the
// program without clicking through it: swale_screenshots OUTPUT_FOLDER. Runs on any Qt platform
// (offscreen or a virtual X display); the window uses a temporary settings folder.
#include "GlobalData.h"
#include "HelpViewer.h"
#include "InputPage.h"
#include "OptionGroup.h"
#include "RecordingPrompts.h"
#include "ScrollingPage.h"
#include "frmAbout.h"
#include "frmMain.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
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
        QTextStream(stderr) << "usage: swale_screenshots OUTPUT_FOLDER\n";
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
        save(&window, output, QStringLiteral("input-method-%1").arg(method));
        QScrollBar *bar = window.page(0)->vscScrollWindow();
        bar->setValue(bar->maximum());
        save(&window, output, QStringLiteral("input-method-%1-end").arg(method));
        bar->setValue(0);
        window.calculateButton()->click();
        save(&window, output, QStringLiteral("results-method-%1").arg(method));
    }
    window.inputPage()->channelFlowGroup()->option(2)->click();
    save(&window, output, QStringLiteral("input-method-4-flow-rate"));

    window.tabs()->setCurrentIndex(2);
    save(&window, output, QStringLiteral("help-tab"));
    window.tabs()->setCurrentIndex(0);
    window.showHelpTopic(1);
    auto *help = window.findChild<HelpViewer *>();
    if (help) {
        save(help, output, QStringLiteral("help-1"));
        window.showHelpTopic(2);
        save(help, output, QStringLiteral("help-2"));
    }
    frmAbout about(window.versionText(), &window);
    about.show();
    save(&about, output, QStringLiteral("about"));
    for (const QString &message : prompts.messages())
        QTextStream(stdout) << "message: " << message << "\n";
    window.OpenDataFile(examples + projects.at(0), OpenExample); // leave without a question
    return 0;
}
