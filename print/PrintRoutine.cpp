#include "PrintRoutine.h"

#include "ReportContent.h"
#include "ReportPainter.h"

#include <QDir>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

const char *const kNoPrinterMessage = "Unable to establish connection with printer.";

namespace {

constexpr int kExclamationStyle = 48;
const QString kErrorTitle = QStringLiteral("Error");

QString documentTitle(const SwaleProject &project)
{
    const QString job = QString::fromStdString(project.inputText[1]).trimmed();
    const QString program = QString::fromUtf8(kReportProgramName);
    return job.isEmpty() ? program : program + QStringLiteral(" - ") + job;
}

void applySetup(QPagedPaintDevice &device, const ReportPageSetup &setup)
{
    device.setPageLayout(QPageLayout(setup.pageSize, setup.orientation, QMarginsF(),
                                     QPageLayout::Point, QMarginsF()));
}

} // namespace

bool PrintPrompts::hasPrinter() const
{
    return !QPrinterInfo::availablePrinters().isEmpty();
}

QMarginsF marginsInPoints(const PageMargins &margins)
{
    return QMarginsF(
            marginInPoints(margins, margins.Margin1), marginInPoints(margins, margins.Margin2),
            marginInPoints(margins, margins.Margin4), marginInPoints(margins, margins.Margin3));
}

FileDialogRequest pdfFileRequest(const QString &suggestedPath)
{
    const QFileInfo suggested(suggestedPath);
    FileDialogRequest request;
    request.initialFolder = suggested.absolutePath() + QLatin1Char('/');
    request.fileName = suggested.fileName();
    request.filters = { QStringLiteral("PDF Files (*.pdf)") };
    request.defaultSuffix = QStringLiteral("pdf");
    request.flags = FileDialogRequest::OverwritePrompt | FileDialogRequest::PathMustExist;
    return request;
}

QString suggestedPdfPath(const QString &projectFilePath, const QString &dataFolder)
{
    if (projectFilePath.isEmpty())
        return QDir(dataFolder).filePath(QStringLiteral("Swale report.pdf"));
    const QFileInfo info(projectFilePath);
    return info.dir().filePath(info.completeBaseName() + QStringLiteral(".pdf"));
}

bool writeReportPdf(const QString &pdfPath, const SwaleProject &project,
                    const QString &projectFilePath, const ReportPageSetup &setup,
                    const PageMargins &margins, QString *error)
{
    QSaveFile file(pdfPath);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    {
        QPdfWriter writer(&file);
        writer.setResolution(1200);
        writer.setTitle(documentTitle(project));
        writer.setCreator(QString::fromUtf8(kReportProgramName));
        applySetup(writer, setup);
        const ReportContent content = buildReportContent(project, projectFilePath);
        if (!paintReport(writer, content, marginsInPoints(margins), error))
            return false;
    }
    if (!file.commit()) {
        if (error)
            *error = file.errorString();
        return false;
    }
    return true;
}

PrintRoutine::PrintRoutine(PrintPrompts &prompts, const QString &programFolder)
    : m_prompts(prompts)
    , m_programFolder(programFolder)
{ }

QString PrintRoutine::marginsFilePath() const
{
    return QDir(m_programFolder).filePath(QString::fromUtf8(kMarginsFile));
}

PageMargins PrintRoutine::currentMargins() const
{
    if (m_setup.marginsChosen)
        return m_setup.margins;
    PageMargins margins;
    ReadPageMargins(marginsFilePath().toStdString(), margins);
    return margins;
}

bool PrintRoutine::printReport(const SwaleProject &project, const QString &projectFilePath)
{
    const QString noPrinter = QString::fromUtf8(kNoPrinterMessage);
    if (!m_prompts.hasPrinter()) {
        m_prompts.ShowErrorMessage(noPrinter, kExclamationStyle, kErrorTitle);
        return false;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(documentTitle(project));
    printer.setCreator(QString::fromUtf8(kReportProgramName));
    applySetup(printer, m_setup);
    if (!m_prompts.askPrinter(printer))
        return false;
    printer.setFullPage(true);
    const ReportContent content = buildReportContent(project, projectFilePath);
    if (!paintReport(printer, content, marginsInPoints(currentMargins()))) {
        m_prompts.ShowErrorMessage(noPrinter, kExclamationStyle, kErrorTitle);
        return false;
    }
    return true;
}

bool PrintRoutine::pageSetup()
{
    PageMargins fileMargins;
    ReadPageMargins(marginsFilePath().toStdString(), fileMargins);
    ReportPageSetup setup = m_setup;
    if (!m_prompts.askPageSetup(setup, fileMargins))
        return false;
    m_setup = setup;
    return true;
}

bool PrintRoutine::exportPdf(const SwaleProject &project, const QString &projectFilePath,
                             const QString &dataFolder)
{
    const QString path = m_prompts.askSaveFileName(
            pdfFileRequest(suggestedPdfPath(projectFilePath, dataFolder)));
    if (path.isEmpty())
        return false;
    if (!writeReportPdf(path, project, projectFilePath, m_setup, currentMargins())) {
        m_prompts.ShowErrorMessage(QStringLiteral("Error writing to file:") + QLatin1Char('\r')
                                           + path,
                                   kExclamationStyle, kErrorTitle);
        return false;
    }
    return true;
}
