#pragma once

#include "UserTexts.h"

#include <QList>
#include <QString>
#include <QStringList>

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

// Every message box and file dialog of the window goes through this interface, so that the
// tests can script the answers and the window never blocks a headless run.
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
