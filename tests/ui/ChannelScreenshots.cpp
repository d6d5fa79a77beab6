// Pictures of the channel pane for a person to look at: every example calculated in a wide
// window, each drawing of the pane, the greyed pane after an edit and a failed calculation:
// swale_channel_screenshots OUTPUT_FOLDER.
#include "ChannelPane.h"
#include "ScreenshotSession.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTabWidget>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    ScreenshotSession session;
    if (!session.start(argc, argv, "swale_channel_screenshots"))
        return 64;
    frmMain window(session.prompts, session.folders);
    window.resize(1280, 860);
    window.show();
    window.menus().mnuView_ChannelPane->setChecked(true);
    ChannelPane *pane = window.channelPane();

    const QString examples = QApplication::applicationDirPath() + QStringLiteral("/Examples/");
    const QStringList projects = {
        QStringLiteral("Roadside swale - required length.swl"),
        QStringLiteral("Parking lot swale - efficiency of given length.swl"),
        QStringLiteral("Median ditch - inlet interception.swl"),
        QStringLiteral("Lined roadside ditch - capacity check.swl"),
    };
    for (int method = 1; method <= projects.size(); ++method) {
        window.OpenDataFile(examples + projects.at(method - 1), OpenExample);
        window.calculateButton()->click();
        for (int tab = 0; tab < pane->tabs()->count(); ++tab) {
            pane->tabs()->setCurrentIndex(tab);
            session.save(&window, QStringLiteral("channel-method-%1-view-%2").arg(method).arg(tab));
        }
    }
    pane->tabs()->setCurrentIndex(0);
    window.txtInput(6)->setText(QStringLiteral("5"));
    session.save(&window, QStringLiteral("channel-stale"));
    window.txtInput(6)->setText(QStringLiteral("-1"));
    window.calculateButton()->click();
    session.save(&window, QStringLiteral("channel-failed"));
    window.OpenDataFile(examples + projects.at(0), OpenExample); // leave without a question
    return 0;
}
