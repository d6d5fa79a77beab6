#pragma once

#include "Prompts.h"

#include <QList>
#include <QPageSize>
#include <QString>

#include <functional>

// The prompts of the window and the print commands for tests: it records every message box and
// dialog and answers from a script. A prompt the script does not expect fails the running test
// at once and is answered with Cancel (or an empty path), so nothing blocks.
class RecordingPrompts : public PrintPrompts
{
public:
    enum class Kind {
        Message,
        OpenDialog,
        SaveDialog,
        PrintDialog,
        PageSetup,
        RecoveryDialog,
        Preview,
    };

    struct Record
    {
        Kind kind;
        QString message; // message boxes
        int style = 0;
        QString title;
        FileDialogRequest request; // file dialogs
        QPageSize::PageSizeId paper = QPageSize::Custom; // print dialog: the paper it opened on
        PageMargins fileMargins; // page setup: the margins of Margins.ini it was offered
        QList<RecoveryOffer> offers; // the recovery dialog
        int pages = 0; // the preview: the pages it shows
    };

    // Script the next prompt: a message box answered with `answer` (MessageAnswer), a file
    // dialog answered with `path` ("" is Cancel), the print dialog accepted or cancelled (when
    // accepted with `printToFile`, the printer writes a PDF there), Page Setup accepted with
    // `setup`.
    void answerMessage(int answer = MessageAnswer::Ok);
    void answerOpen(const QString &path);
    void answerSave(const QString &path);
    void answerPrinter(bool accept, const QString &printToFile = QString());
    void answerPageSetup(const ReportPageSetup &setup);
    void answerRecovery(RecoveryAnswer answer);
    // The Print Preview: `whileShown` runs while it is open (it may press its buttons).
    void answerPreview(std::function<void(ReportPreviewDialog &)> whileShown = {});
    void setPrinterInstalled(bool installed) { m_printerInstalled = installed; }

    // With `on`, unscripted message boxes are answered OK and dialogs cancelled without failing
    // (for tools that drive the window, not for tests).
    void setLenient(bool on) { m_lenient = on; }

    const QList<Record> &records() const { return m_records; }
    QList<Record> recordsOf(Kind kind) const;
    // Messages only, in order.
    QStringList messages() const;
    int pendingAnswers() const { return static_cast<int>(m_script.size()); }
    void clear();

    int ShowErrorMessage(const QString &message, int style, const QString &title) override;
    QString askOpenFileName(const FileDialogRequest &request) override;
    QString askSaveFileName(const FileDialogRequest &request) override;
    bool askPrinter(QPrinter &printer) override;
    bool askPageSetup(ReportPageSetup &setup, const PageMargins &fileMargins) override;
    bool hasPrinter() const override { return m_printerInstalled; }
    RecoveryAnswer askRecovery(const QList<RecoveryOffer> &offers) override;
    void showPreview(ReportPreviewDialog &dialog) override;

private:
    struct Answer
    {
        Kind kind;
        int button = MessageAnswer::Ok;
        QString path;
        ReportPageSetup setup;
        RecoveryAnswer recovery;
        std::function<void(ReportPreviewDialog &)> whileShown;
    };
    // A new record of a prompt of `kind`, to be filled in.
    Record &record(Kind kind);
    // The scripted answer for a prompt of `kind`, or false when none was scripted.
    bool takeAnswer(Kind kind, const QString &what, Answer &answer);
    QString askFileName(Kind kind, const FileDialogRequest &request);

    QList<Answer> m_script;
    QList<Record> m_records;
    bool m_lenient = false;
    bool m_printerInstalled = false;
};
