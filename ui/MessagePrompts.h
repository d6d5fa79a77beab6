#pragma once

#include "Prompts.h"

// The prompts of a running program: QMessageBox, QFileDialog, QApplication::beep, and the
// system print and page-setup dialogs. Dialogs are centred on the active window.
class MessagePrompts : public PrintPrompts
{
public:
    int ShowErrorMessage(const QString &message, int style, const QString &title) override;
    QString askOpenFileName(const FileDialogRequest &request) override;
    QString askSaveFileName(const FileDialogRequest &request) override;
    RecoveryAnswer askRecovery(const QList<RecoveryOffer> &offers) override;
    bool askPrinter(QPrinter &printer) override;
    bool askPageSetup(ReportPageSetup &setup, const PageMargins &fileMargins) override;
    void showPreview(ReportPreviewDialog &dialog) override;
};
