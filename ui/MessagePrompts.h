#pragma once

#include "Prompts.h"

class QWidget;

// The prompts of a running program: QMessageBox, QFileDialog and QApplication::beep. Dialogs
// are centred on the active window.
class MessagePrompts : public Prompts
{
public:
    int ShowErrorMessage(const QString &message, int style, const QString &title) override;
    QString askOpenFileName(const FileDialogRequest &request) override;
    QString askSaveFileName(const FileDialogRequest &request) override;
    RecoveryAnswer askRecovery(const QList<RecoveryOffer> &offers) override;
};
