#include "RecordingPrompts.h"

#include <QTest>

void RecordingPrompts::answerMessage(int answer)
{
    m_script.append({ Kind::Message, answer, QString(), {} });
}

void RecordingPrompts::answerOpen(const QString &path)
{
    m_script.append({ Kind::OpenDialog, MessageAnswer::Ok, path, {} });
}

void RecordingPrompts::answerSave(const QString &path)
{
    m_script.append({ Kind::SaveDialog, MessageAnswer::Ok, path, {} });
}

void RecordingPrompts::answerRecovery(RecoveryAnswer answer)
{
    m_script.append({ Kind::RecoveryDialog, MessageAnswer::Ok, QString(), answer });
}

QStringList RecordingPrompts::messages() const
{
    QStringList list;
    for (const Record &record : m_records) {
        if (record.kind == Kind::Message)
            list << record.message;
    }
    return list;
}

void RecordingPrompts::clear()
{
    m_script.clear();
    m_records.clear();
}

bool RecordingPrompts::takeAnswer(Kind kind, const QString &what, Answer &answer)
{
    if (!m_script.isEmpty() && m_script.constFirst().kind == kind) {
        answer = m_script.takeFirst();
        return true;
    }
    if (!m_lenient) {
        const QByteArray text = "unscripted prompt: " + what.toUtf8();
        QTest::qFail(text.constData(), __FILE__, __LINE__);
    }
    return false;
}

int RecordingPrompts::ShowErrorMessage(const QString &message, int style, const QString &title)
{
    m_records.append({ Kind::Message, message, style, title, {}, {} });
    Answer answer;
    if (takeAnswer(Kind::Message, QStringLiteral("message box \"%1\"").arg(message), answer))
        return answer.button;
    const bool okOnly = (style & MessageStyle::ButtonMask) == MessageStyle::OkOnly;
    return m_lenient && okOnly ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

QString RecordingPrompts::askOpenFileName(const FileDialogRequest &request)
{
    m_records.append({ Kind::OpenDialog, QString(), 0, QString(), request, {} });
    Answer answer;
    return takeAnswer(Kind::OpenDialog, QStringLiteral("Open dialog"), answer) ? answer.path
                                                                               : QString();
}

QString RecordingPrompts::askSaveFileName(const FileDialogRequest &request)
{
    m_records.append({ Kind::SaveDialog, QString(), 0, QString(), request, {} });
    Answer answer;
    return takeAnswer(Kind::SaveDialog, QStringLiteral("Save dialog"), answer) ? answer.path
                                                                               : QString();
}

// Unscripted, the recovery dialog answers Later: nothing is opened or deleted.
RecoveryAnswer RecordingPrompts::askRecovery(const QList<RecoveryOffer> &offers)
{
    m_records.append({ Kind::RecoveryDialog, QString(), 0, QString(), {}, offers });
    Answer answer;
    return takeAnswer(Kind::RecoveryDialog, QStringLiteral("recovery dialog"), answer)
            ? answer.recovery
            : RecoveryAnswer {};
}
