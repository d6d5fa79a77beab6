#include "WindowPrintPrompts.h"

#include "Prompts.h"

#include <QFileInfo>

WindowPrintPrompts::WindowPrintPrompts(Prompts &prompts, QWidget *parent)
    : SystemPrintDialogs(parent)
    , m_prompts(prompts)
{ }

int WindowPrintPrompts::ShowErrorMessage(const QString &message, int style, const QString &title)
{
    return m_prompts.ShowErrorMessage(message, style, title);
}

QString WindowPrintPrompts::askPdfFileName(const QString &suggestedPath)
{
    const QFileInfo suggested(suggestedPath);
    FileDialogRequest request;
    request.initialFolder = suggested.absolutePath() + QLatin1Char('/');
    request.fileName = suggested.fileName();
    request.filters = { QStringLiteral("PDF Files (*.pdf)") };
    request.defaultSuffix = QStringLiteral("pdf");
    request.flags = FileDialogRequest::OverwritePrompt | FileDialogRequest::PathMustExist;
    return m_prompts.askSaveFileName(request);
}
