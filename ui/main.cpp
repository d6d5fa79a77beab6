#include "GlobalData.h"
#include "MessagePrompts.h"
#include "Prompts.h"
#include "frmMain.h"

#include <QApplication>
#include <QIcon>

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
    if (!BuildGlobalData(QApplication::applicationDirPath().toStdString(), folders, error)) {
        prompts.ShowErrorMessage(QString::fromStdString(error.description), MessageStyle::Critical,
                                 QLatin1String(kErrorTitle));
        return 1;
    }

    frmMain window(prompts, folders);
    window.show();
    return app.exec();
}
