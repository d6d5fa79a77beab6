#pragma once

// The report printing of the program: Print, Page Setup and Export PDF for the window, and the
// PDF writer that the command-line tool shares.
//
// How the window uses it:
//   - The window's prompts (Prompts.h) serve the print commands too: the program's real ones
//     show the system print and page-setup dialogs, the tests' double scripts every answer.
//   - Own one PrintRoutine for the window's life, made with those prompts and the program folder
//     (GlobalData::programFolder), so that Page Setup choices last until the program ends.
//   - Print (mnuFile_Print, toolbar "Print"), only while the results are valid:
//         printRoutine.printReport(project, currentFilePath);
//     With no printer installed it shows "Unable to establish connection with printer." titled
//     "Error" (style 48) and prints nothing; so it does when the chosen printer cannot be opened.
//   - Page Setup (mnuFile_PrintSetup): printRoutine.pageSetup();
//   - Export PDF ("Export P&DF..." after Print, enabled with Print):
//         printRoutine.exportPdf(project, source, dataFolder, &writtenPath);
//     It asks for a file name (suggesting the project's name with ".pdf") and writes the report;
//     a file that cannot be written is reported as "Error writing to file:" + CR + path.
//   - Print Preview ("Print Pre&view..." after Export PDF, enabled with Print):
//         printRoutine.printPreview(project, source, dataFolder);
//     The report's pages on the paper and margins of Page Setup, printed or exported from there
//     through the same commands. It needs no printer.
//   `project` is the document as the window holds it (SwaleProject: input texts as typed, chosen
//   options, rating-curve cells, results flag and output texts); `source` names the document:
//   the current file path ("" for an untitled project) or ReportSource::example(path).
//
// Margins: Margins.ini in the program folder is read at each print and export (ReadPageMargins);
// margins chosen in Page Setup replace it for the rest of the run. Margin 1 is the left edge,
// 2 the top, 3 the bottom and 4 the right. Paper defaults to US Letter, portrait.

#include "PageMargins.h"
#include "PageSetupDialog.h"
#include "ReportContent.h"
#include "Prompts.h"
#include "SwaleProject.h"

#include <QMarginsF>
#include <QString>

#include <vector>

class ReportPreviewDialog;

extern const char *const kNoPrinterMessage; // "Unable to establish connection with printer."

class PrintRoutine
{
public:
    PrintRoutine(PrintPrompts &prompts, const QString &programFolder);

    // The Print command. True when the report went to the printer.
    bool printReport(const SwaleProject &project, const ReportSource &source);
    // The Page Setup command. True when the user accepted new choices.
    bool pageSetup();
    // The Export PDF command. True when the PDF was written; its path goes to `writtenPath`.
    bool exportPdf(const SwaleProject &project, const ReportSource &source,
                   const QString &dataFolder, QString *writtenPath = nullptr);
    // The Print Preview command: shows the report's pages until the user closes the preview.
    // Returns the path of a PDF exported from there, "" when none was.
    QString printPreview(const SwaleProject &project, const ReportSource &source,
                         const QString &dataFolder);

    const ReportPageSetup &setup() const { return m_setup; }
    // Sections printed after the report's own, such as the design explorer's page; none by
    // default.
    void setExtraSections(std::vector<ReportSection> sections)
    {
        m_extraSections = std::move(sections);
    }
    // The margins of the next print: those chosen in Page Setup, else Margins.ini read now.
    PageMargins currentMargins() const;

private:
    QString marginsFilePath() const;

    PrintPrompts &m_prompts;
    QString m_programFolder;
    ReportPageSetup m_setup;
    std::vector<ReportSection> m_extraSections;
};

// The record's margins in points as left, top, right, bottom.
QMarginsF marginsInPoints(const PageMargins &margins);

// What Export PDF asks the Save dialog for: `suggestedPath` proposed, filter "PDF Files (*.pdf)".
FileDialogRequest pdfFileRequest(const QString &suggestedPath);

// The file name the Export PDF dialog suggests: the project's path with ".pdf"; for an example,
// its name with ".pdf" in `dataFolder`; "Swale report.pdf" there for another untitled project.
QString suggestedPdfPath(const ReportSource &source, const QString &dataFolder);

// Writes the report of `project` to `pdfPath` on the paper of `setup` with `margins`, followed
// by `extraSections`. The file is replaced only once the whole report was written. Returns false
// with the reason in `error`. Needs a QGuiApplication (fonts).
bool writeReportPdf(const QString &pdfPath, const SwaleProject &project, const ReportSource &source,
                    const ReportPageSetup &setup, const PageMargins &margins,
                    QString *error = nullptr, const std::vector<ReportSection> &extraSections = {});
