#include "RecordingPrompts.h"

#include "ReportPreviewDialog.h"

#include <QPrinter>
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

void RecordingPrompts::answerPrinter(bool accept, const QString &printToFile)
{
    m_script.append({ Kind::PrintDialog,
                      accept ? MessageAnswer::Ok : MessageAnswer::Cancel,
                      printToFile,
                      {} });
}

void RecordingPrompts::answerPageSetup(const ReportPageSetup &setup)
{
    m_script.append({ Kind::PageSetup, MessageAnswer::Ok, QString(), setup });
}

void RecordingPrompts::answerRecovery(RecoveryAnswer answer)
{
    m_script.append({ Kind::RecoveryDialog, MessageAnswer::Ok, QString(), {}, answer });
}

QList<RecordingPrompts::Record> RecordingPrompts::recordsOf(Kind kind) const
{
    QList<Record> list;
    for (const Record &record : m_records) {
        if (record.kind == kind)
            list << record;
    }
    return list;
}

QStringList RecordingPrompts::messages() const
{
    QStringList list;
    for (const Record &record : recordsOf(Kind::Message))
        list << record.message;
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

RecordingPrompts::Record &RecordingPrompts::record(Kind kind)
{
    m_records.append(Record { kind });
    return m_records.last();
}

int RecordingPrompts::ShowErrorMessage(const QString &message, int style, const QString &title)
{
    Record &box = record(Kind::Message);
    box.message = message;
    box.style = style;
    box.title = title;
    Answer answer;
    if (takeAnswer(Kind::Message, QStringLiteral("message box \"%1\"").arg(message), answer))
        return answer.button;
    const bool okOnly = (style & MessageStyle::ButtonMask) == MessageStyle::OkOnly;
    return m_lenient && okOnly ? MessageAnswer::Ok : MessageAnswer::Cancel;
}

QString RecordingPrompts::askFileName(Kind kind, const FileDialogRequest &request)
{
    record(kind).request = request;
    Answer answer;
    const QString what = kind == Kind::OpenDialog ? QStringLiteral("Open dialog")
                                                  : QStringLiteral("Save dialog");
    return takeAnswer(kind, what, answer) ? answer.path : QString();
}

QString RecordingPrompts::askOpenFileName(const FileDialogRequest &request)
{
    return askFileName(Kind::OpenDialog, request);
}

QString RecordingPrompts::askSaveFileName(const FileDialogRequest &request)
{
    return askFileName(Kind::SaveDialog, request);
}

bool RecordingPrompts::askPrinter(QPrinter &printer)
{
    record(Kind::PrintDialog).paper = printer.pageLayout().pageSize().id();
    Answer answer;
    if (!takeAnswer(Kind::PrintDialog, QStringLiteral("print dialog"), answer))
        return false;
    // "Print to File" of the print dialog: the report goes to a PDF the test can read.
    if (!answer.path.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(answer.path);
    }
    return answer.button == MessageAnswer::Ok;
}

bool RecordingPrompts::askPageSetup(ReportPageSetup &setup, const PageMargins &fileMargins)
{
    record(Kind::PageSetup).fileMargins = fileMargins;
    Answer answer;
    if (!takeAnswer(Kind::PageSetup, QStringLiteral("page setup"), answer))
        return false;
    setup = answer.setup;
    return true;
}

// Unscripted, the recovery dialog answers Later: nothing is opened or deleted.
RecoveryAnswer RecordingPrompts::askRecovery(const QList<RecoveryOffer> &offers)
{
    record(Kind::RecoveryDialog).offers = offers;
    Answer answer;
    return takeAnswer(Kind::RecoveryDialog, QStringLiteral("recovery dialog"), answer)
            ? answer.recovery
            : RecoveryAnswer {};
}

void RecordingPrompts::answerPreview(std::function<void(ReportPreviewDialog &)> whileShown)
{
    Answer answer { Kind::Preview };
    answer.whileShown = std::move(whileShown);
    m_script.append(answer);
}

void RecordingPrompts::showPreview(ReportPreviewDialog &dialog)
{
    record(Kind::Preview).pages = dialog.pageCount();
    Answer answer;
    if (takeAnswer(Kind::Preview, QStringLiteral("print preview"), answer) && answer.whileShown)
        answer.whileShown(dialog);
}
