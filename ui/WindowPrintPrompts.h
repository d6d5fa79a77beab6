#pragma once

#include "PrintRoutine.h"

class Prompts;

// The print commands' dialogs for the main window: the system print and page-setup dialogs,
// with the window's own message procedure and Save dialog (for the PDF file name).
class WindowPrintPrompts : public SystemPrintDialogs
{
public:
    WindowPrintPrompts(Prompts &prompts, QWidget *parent);

    int ShowErrorMessage(const QString &message, int style, const QString &title) override;
    QString askPdfFileName(const QString &suggestedPath) override;

private:
    Prompts &m_prompts;
};
