#include "PrintRoutine.h"

#include "ReportContent.h"
#include "ReportPainter.h"
#include "ReportPreviewDialog.h"
#include "UserTexts.h"

#include <QDir>
#include <QFileInfo>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QSaveFile>

const char *const kNoPrinterMessage = "Unable to establish connection with printer.";

namespace {

QString documentTitle(const SwaleProject &project)
{
    const QString job = QString::fromStdString(project.inputText[1]).trimmed();
    const QString program = QString::fromUtf8(kProgramTitle);
    return job.isEmpty() ? program : program + QStringLiteral(" - ") + job;
}

void applySetup(QPagedPaintDevice &device, const ReportPageSetup &setup)
{
    device.setPageLayout(QPageLayout(setup.pageSize, setup.orientation, QMarginsF(),
                                     QPageLayout::Point, QMarginsF()));
}

void prepareForReport(QPrinter &printer, const SwaleProject &project, const ReportPageSetup &setup)
{
    printer.setDocName(documentTitle(project));
    printer.setCreator(QString::fromUtf8(kProgramTitle));
    applySetup(printer, setup);
}

} // namespace

bool PrintPrompts::hasPrinter() const
{
    return !QPrinterInfo::availablePrinters().isEmpty();
}

void PrintPrompts::showPreview(ReportPreviewDialog &dialog)
{
    dialog.exec();
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

QString suggestedPdfPath(const ReportSource &source, const QString &dataFolder)
{
    if (!source.filePath.isEmpty()) {
        const QFileInfo info(source.filePath);
        return info.dir().filePath(info.completeBaseName() + QStringLiteral(".pdf"));
    }
    const QString name
            = source.exampleName.isEmpty() ? QStringLiteral("Swale report") : source.exampleName;
    return QDir(dataFolder).filePath(name + QStringLiteral(".pdf"));
}

bool writeReportPdf(const QString &pdfPath, const SwaleProject &project, const ReportSource &source,
                    const ReportPageSetup &setup, const PageMargins &margins, QString *error,
                    const std::vector<ReportSection> &extraSections)
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
        writer.setCreator(QString::fromUtf8(kProgramTitle));
        applySetup(writer, setup);
        ReportContent content = buildReportContent(project, source);
        content.sections.insert(content.sections.end(), extraSections.begin(), extraSections.end());
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

bool PrintRoutine::printReport(const SwaleProject &project, const ReportSource &source)
{
    const QString noPrinter = QString::fromUtf8(kNoPrinterMessage);
    if (!m_prompts.hasPrinter()) {
        m_prompts.ShowErrorMessage(noPrinter, MessageStyle::Exclamation,
                                   QLatin1String(kErrorTitle));
        return false;
    }
    QPrinter printer(QPrinter::HighResolution);
    prepareForReport(printer, project, m_setup);
    if (!m_prompts.askPrinter(printer))
        return false;
    printer.setFullPage(true);
    ReportContent content = buildReportContent(project, source);
    content.sections.insert(content.sections.end(), m_extraSections.begin(), m_extraSections.end());
    if (!paintReport(printer, content, marginsInPoints(currentMargins()))) {
        m_prompts.ShowErrorMessage(noPrinter, MessageStyle::Exclamation,
                                   QLatin1String(kErrorTitle));
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

bool PrintRoutine::exportPdf(const SwaleProject &project, const ReportSource &source,
                             const QString &dataFolder, QString *writtenPath)
{
    const QString path
            = m_prompts.askSaveFileName(pdfFileRequest(suggestedPdfPath(source, dataFolder)));
    if (path.isEmpty())
        return false;
    if (!writeReportPdf(path, project, source, m_setup, currentMargins(), nullptr,
                        m_extraSections)) {
        m_prompts.ShowErrorMessage(QLatin1String(kErrorWritingToFileMessage) + QLatin1Char('\r')
                                           + path,
                                   MessageStyle::Exclamation, QLatin1String(kErrorTitle));
        return false;
    }
    if (writtenPath)
        *writtenPath = path;
    return true;
}

// The preview paints the report on its own engine, so it needs no printer; its Print and
// Export PDF buttons run the commands of the window, with their dialogs and messages.
QString PrintRoutine::printPreview(const SwaleProject &project, const ReportSource &source,
                                   const QString &dataFolder)
{
    QPrinter printer(QPrinter::HighResolution);
    prepareForReport(printer, project, m_setup);
    printer.setFullPage(true);
    ReportContent content = buildReportContent(project, source);
    content.sections.insert(content.sections.end(), m_extraSections.begin(), m_extraSections.end());
    const QMarginsF margins = marginsInPoints(currentMargins());
    ReportPreviewDialog dialog(printer, [&content, margins](QPrinter &target) {
        paintReport(target, content, margins);
    });
    QString exported;
    QObject::connect(&dialog, &ReportPreviewDialog::printRequested, &dialog,
                     [&] { printReport(project, source); });
    QObject::connect(&dialog, &ReportPreviewDialog::exportRequested, &dialog,
                     [&] { exportPdf(project, source, dataFolder, &exported); });
    m_prompts.showPreview(dialog);
    return exported;
}
