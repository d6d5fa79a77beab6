#include "MessagePrompts.h"

#include "ReportPreviewDialog.h"

#include "RecoveryDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

#include <algorithm>

namespace {

QMessageBox::Icon iconOf(int style)
{
    switch (style & MessageStyle::IconMask) {
    case MessageStyle::Critical:
        return QMessageBox::Critical;
    case MessageStyle::Question:
        return QMessageBox::Question;
    case MessageStyle::Exclamation:
        return QMessageBox::Warning;
    case MessageStyle::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

struct ButtonChoice
{
    QMessageBox::StandardButton button;
    int answer;
};

// The buttons of `style`, in the order they stand; the first one is the default.
QList<ButtonChoice> buttonsOf(int style)
{
    switch (style & MessageStyle::ButtonMask) {
    case MessageStyle::OkCancel:
        return { { QMessageBox::Ok, MessageAnswer::Ok },
                 { QMessageBox::Cancel, MessageAnswer::Cancel } };
    case MessageStyle::YesNoCancel:
        return { { QMessageBox::Yes, MessageAnswer::Yes },
                 { QMessageBox::No, MessageAnswer::No },
                 { QMessageBox::Cancel, MessageAnswer::Cancel } };
    case MessageStyle::YesNo:
        return { { QMessageBox::Yes, MessageAnswer::Yes }, { QMessageBox::No, MessageAnswer::No } };
    default:
        return { { QMessageBox::Ok, MessageAnswer::Ok } };
    }
}

// Opens the dialog in its detail view, wide and tall enough that names, sizes, types and dates
// show whole: the name column takes what the other columns leave.
void sizeForDetails(QFileDialog &dialog)
{
    dialog.setViewMode(QFileDialog::Detail);
    const QFontMetrics metrics(dialog.font());
    // The side bar, a name of some fifty characters ("Parking lot swale - efficiency of given
    // length.swl"), the size, the type and the date: about 150 average characters in all.
    QSize size(150 * metrics.averageCharWidth(), 30 * metrics.height());
    if (const QScreen *screen = dialog.screen())
        size = size.boundedTo(screen->availableGeometry().size() * 9 / 10);
    dialog.resize(size.expandedTo(dialog.size()));
    if (auto *details = dialog.findChild<QTreeView *>(QStringLiteral("treeView"))) {
        QHeaderView *header = details->header();
        header->setStretchLastSection(false);
        header->setSectionResizeMode(QHeaderView::ResizeToContents);
        header->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

QFileDialog *makeDialog(const FileDialogRequest &request, QFileDialog::AcceptMode mode)
{
    auto *dialog = new QFileDialog(QApplication::activeWindow());
    dialog->setAcceptMode(mode);
    dialog->setDirectory(request.initialFolder);
    dialog->setNameFilters(request.filters);
    if (request.selectedFilter >= 0 && request.selectedFilter < request.filters.size())
        dialog->selectNameFilter(request.filters.at(request.selectedFilter));
    dialog->setDefaultSuffix(request.defaultSuffix);
    if (!request.fileName.isEmpty())
        dialog->selectFile(request.fileName);
    if (request.flags & FileDialogRequest::FileMustExist)
        dialog->setFileMode(QFileDialog::ExistingFile);
    else
        dialog->setFileMode(QFileDialog::AnyFile);
    if (!(request.flags & FileDialogRequest::OverwritePrompt))
        dialog->setOption(QFileDialog::DontConfirmOverwrite);
    sizeForDetails(*dialog);
    return dialog;
}

QString runDialog(QFileDialog *dialog)
{
    QString path;
    if (dialog->exec() == QDialog::Accepted && !dialog->selectedFiles().isEmpty())
        path = dialog->selectedFiles().constFirst();
    delete dialog;
    return path;
}

} // namespace

int MessagePrompts::ShowErrorMessage(const QString &message, int style, const QString &title)
{
    QApplication::beep();
    QMessageBox box(iconOf(style), title, message, QMessageBox::NoButton,
                    QApplication::activeWindow());
    const QList<ButtonChoice> choices = buttonsOf(style);
    for (const ButtonChoice &choice : choices)
        box.addButton(choice.button);
    box.setDefaultButton(choices.constFirst().button);
    // Closing the box with Escape or its close button answers Cancel where there is one.
    const int pressed = box.exec();
    for (const ButtonChoice &choice : choices) {
        if (choice.button == pressed)
            return choice.answer;
    }
    return (style & MessageStyle::ButtonMask) == MessageStyle::OkOnly ? MessageAnswer::Ok
                                                                      : MessageAnswer::Cancel;
}

QString MessagePrompts::askOpenFileName(const FileDialogRequest &request)
{
    return runDialog(makeDialog(request, QFileDialog::AcceptOpen));
}

QString MessagePrompts::askSaveFileName(const FileDialogRequest &request)
{
    return runDialog(makeDialog(request, QFileDialog::AcceptSave));
}

RecoveryAnswer MessagePrompts::askRecovery(const QList<RecoveryOffer> &offers)
{
    return askRecoveryInDialog(offers, QApplication::activeWindow());
}

bool MessagePrompts::askPrinter(QPrinter &printer)
{
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    return dialog.exec() == QDialog::Accepted;
}

bool MessagePrompts::askPageSetup(ReportPageSetup &setup, const PageMargins &fileMargins)
{
    PageSetupDialog dialog(setup, fileMargins, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    setup = dialog.setup();
    return true;
}

void MessagePrompts::showPreview(ReportPreviewDialog &dialog)
{
    dialog.setParent(QApplication::activeWindow(), dialog.windowFlags());
    dialog.exec();
}
