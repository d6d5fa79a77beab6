#pragma once

#include "Prompts.h"

#include <QList>
#include <QString>

// A Prompts for tests: it records every message box and file dialog the window asks for and
// answers from a script. A prompt the script does not expect fails the running test at once
// and is answered with Cancel (or an empty path), so the window never blocks.
class RecordingPrompts : public Prompts
{
public:
    enum class Kind { Message, OpenDialog, SaveDialog, RecoveryDialog };

    struct Record
    {
        Kind kind;
        QString message; // message boxes
        int style = 0;
        QString title;
        FileDialogRequest request; // file dialogs
        QList<RecoveryOffer> offers; // the recovery dialog
    };

    // Script the next prompt: a message box answered with `answer` (MessageAnswer), or a file
    // dialog answered with `path` ("" is Cancel).
    void answerMessage(int answer = MessageAnswer::Ok);
    void answerOpen(const QString &path);
    void answerSave(const QString &path);
    void answerRecovery(RecoveryAnswer answer);

    // With `on`, unscripted message boxes are answered OK and dialogs cancelled without failing
    // (for tools that drive the window, not for tests).
    void setLenient(bool on) { m_lenient = on; }

    const QList<Record> &records() const { return m_records; }
    // Messages only, in order.
    QStringList messages() const;
    int pendingAnswers() const { return static_cast<int>(m_script.size()); }
    void clear();

    int ShowErrorMessage(const QString &message, int style, const QString &title) override;
    QString askOpenFileName(const FileDialogRequest &request) override;
    QString askSaveFileName(const FileDialogRequest &request) override;
    RecoveryAnswer askRecovery(const QList<RecoveryOffer> &offers) override;

private:
    struct Answer
    {
        Kind kind;
        int button = MessageAnswer::Ok;
        QString path;
        RecoveryAnswer recovery;
    };
    // The scripted answer for a prompt of `kind`, or nothing when none was scripted.
    bool takeAnswer(Kind kind, const QString &what, Answer &answer);

    QList<Answer> m_script;
    QList<Record> m_records;
    bool m_lenient = false;
};
