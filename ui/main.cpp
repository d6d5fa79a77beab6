#include "GlobalData.h"
#include "MessagePrompts.h"
#include "Prompts.h"
#include "RecoveryStore.h"
#include "frmMain.h"
#include "tvrEditBox.h"

#include <QApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

namespace {

// For the tests that end the program the hard way: SWALE_AUTOSAVE_INTERVAL_MS shortens the
// autosave interval, and SWALE_TEST_TYPE_JOB_NAME is typed, key by key, into the Job Name box
// once the window is up.
void applyTestHooks(frmMain &window)
{
    bool ok = false;
    const int interval = qEnvironmentVariableIntValue("SWALE_AUTOSAVE_INTERVAL_MS", &ok);
    if (ok && interval > 0)
        window.recovery().setAutosaveInterval(interval);
    const QString typed = qEnvironmentVariable("SWALE_TEST_TYPE_JOB_NAME");
    if (typed.isEmpty())
        return;
    QTimer::singleShot(0, &window, [&window, typed] {
        QLineEdit *box = window.txtInput(1)->editor();
        for (const QChar c : typed) {
            QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QKeyEvent release(QEvent::KeyRelease, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(box, &press);
            QApplication::sendEvent(box, &release);
        }
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Swale"));
    QApplication::setOrganizationName(QStringLiteral("TAVRO"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/swale.svg")));
    MessagePrompts prompts;

    // The folders come first: without a settings base the program cannot keep its files.
    GlobalData folders;
    FolderError error;
    const std::string programFolder
            = programFolderOf(QApplication::applicationDirPath().toStdString());
    if (!BuildGlobalData(programFolder, folders, error)) {
        prompts.ShowErrorMessage(QString::fromStdString(error.description), MessageStyle::Critical,
                                 QLatin1String(kErrorTitle));
        return 1;
    }

    frmMain window(prompts, folders);
    applyTestHooks(window);
    window.show();
    return app.exec();
}
