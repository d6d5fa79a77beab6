// The PDF writer of swale-calc, built as a module of its own: it needs Qt's GUI and printing
// libraries, which would slow every other run of the program if it linked them.

#include "PdfReport.h"

#include "GlobalData.h"
#include "PageMargins.h"
#include "PrintRoutine.h"

#include <QDir>
#include <QFileInfo>
#include <QApplication>

#include <memory>

namespace {

// The application the PDF writer's fonts and the report's charts (Qt Charts draws through
// graphics widgets, which need a QApplication) need, made once for the run.
void ensureGuiApplication()
{
    if (QCoreApplication::instance())
        return;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "swale-calc";
    static char *argv[] = { name, nullptr };
    static std::unique_ptr<QApplication> application = std::make_unique<QApplication>(argc, argv);
}

} // namespace

extern "C" __attribute__((visibility("default"))) bool
swaleWriteProjectPdf(const std::string &pdfPath, const SwaleProject &project,
                     const std::string &projectPath, std::string &error)
{
    ensureGuiApplication();
    const QString programFolder = QString::fromStdString(
            programFolderOf(QCoreApplication::applicationDirPath().toStdString()));
    PageMargins margins;
    ReadPageMargins(QDir(programFolder).filePath(QString::fromUtf8(kMarginsFile)).toStdString(),
                    margins);
    const QString projectFile = QFileInfo(QString::fromStdString(projectPath)).absoluteFilePath();
    QString reason;
    if (!writeReportPdf(QString::fromStdString(pdfPath), project, projectFile, ReportPageSetup(),
                        margins, &reason)) {
        error = reason.toStdString();
        return false;
    }
    return true;
}
