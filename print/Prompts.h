#pragma once

#include "UserTexts.h"
#include "PageMargins.h"
#include "PageSetupDialog.h"

#include <QList>
#include <QString>
#include <QStringList>

class QPrinter;
class ReportPreviewDialog;

// What the Open and Save dialogs are asked for.
struct FileDialogRequest
{
    enum Flag {
        HideReadOnly = 0x1, // no "open as read-only" box
        FileMustExist = 0x2, // only an existing file may be chosen (Open)
        PathMustExist = 0x4, // the folder of the name must exist (Save)
        OverwritePrompt = 0x8, // ask before an existing file is replaced (Save)
    };
    QString initialFolder; // folder shown first, ending with "/"
    QString fileName; // name proposed in the name field; "" for none
    QStringList filters; // "Description (*.ext)" entries, in order
    int selectedFilter = 0; // index into filters of the entry chosen at first
    QString defaultSuffix; // appended to a name typed without an extension
    int flags = 0;
};

// One autosave left by a run of the program that did not end cleanly, as the recovery dialog
// lists it.
struct RecoveryOffer
{
    QString name; // the document's name
    QString savedAt; // when it was written, local time
    QString originalPath; // the user's file; "" for an untitled document
};

// The user's answer to the recovery dialog.
struct RecoveryAnswer
{
    enum Action {
        Keep, // decide at a later start: the dialog was closed
        Open, // open offer `index` (the others are kept)
        Discard, // delete every offered autosave
    };
    Action action = Keep;
    int index = -1;
};

// Every message box and file dialog of the program goes through these interfaces, so that the
// tests script the answers with one recording double and never block a headless run. Prompts
// holds what the window asks; PrintPrompts adds the print commands' dialogs.
class Prompts
{
public:
    virtual ~Prompts() = default;
    // Sounds the system beep, then shows a modal message box with `message`, the buttons and
    // icon of `style` (MessageStyle) and `title`. Returns the button pressed (MessageAnswer).
    virtual int ShowErrorMessage(const QString &message, int style, const QString &title) = 0;
    // The Open dialog; "" when the user cancels.
    virtual QString askOpenFileName(const FileDialogRequest &request) = 0;
    // The Save dialog; "" when the user cancels.
    virtual QString askSaveFileName(const FileDialogRequest &request) = 0;
    // The recovery dialog at start-up: lists `offers` and asks which to open, or to discard
    // them all.
    virtual RecoveryAnswer askRecovery(const QList<RecoveryOffer> &offers) = 0;
};

// The dialogs of Print and Page Setup, beside the window's prompts (Export PDF asks for its file
// name with the Save dialog).
class PrintPrompts : public Prompts
{
public:
    // The system print dialog on `printer`; false when cancelled.
    virtual bool askPrinter(QPrinter &printer) = 0;
    // The Page Setup dialog; `fileMargins` are those of Margins.ini. False when cancelled.
    virtual bool askPageSetup(ReportPageSetup &setup, const PageMargins &fileMargins) = 0;
    // Whether a printer is installed at all.
    virtual bool hasPrinter() const;
    // Shows the Print Preview until the user closes it.
    virtual void showPreview(ReportPreviewDialog &dialog);
};
