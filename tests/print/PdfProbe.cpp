#include "PdfProbe.h"

#include <QProcess>
#include <QRegularExpression>

PdfProbe::PdfProbe(const QString &pdfPath)
{
    QString html;
    if (!runPdftotext({ QStringLiteral("-bbox"), pdfPath, QStringLiteral("-") }, html))
        return;
    // Pages and words in document order.
    static const QRegularExpression token(QStringLiteral(
            "<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">|<word xMin=\"([0-9.]+)\" "
            "yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">([^<]*)</word>"));
    auto it = token.globalMatch(html);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (!match.captured(1).isEmpty()) {
            m_pages.emplace_back(match.captured(1).toDouble(), match.captured(2).toDouble());
            continue;
        }
        PdfWord word;
        word.page = pageCount();
        word.box = QRectF(QPointF(match.captured(3).toDouble(), match.captured(4).toDouble()),
                          QPointF(match.captured(5).toDouble(), match.captured(6).toDouble()));
        word.text = match.captured(7);
        m_words.push_back(word);
    }
    QString text; // pdftotext ends each page with a form feed
    if (!runPdftotext({ QStringLiteral("-layout"), pdfPath, QStringLiteral("-") }, text))
        return;
    for (const QString &page : text.split(QLatin1Char('\f')).mid(0, pageCount()))
        m_pageTexts.append(page.simplified());
    m_valid = pageCount() > 0;
    if (!m_valid)
        m_error = QStringLiteral("no pages in ") + pdfPath;
}

bool PdfProbe::runPdftotext(const QStringList &arguments, QString &output)
{
    QProcess process;
    process.start(QStringLiteral("pdftotext"), arguments);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit
        || process.exitCode() != 0) {
        m_error = QStringLiteral("pdftotext failed: ")
                + QString::fromLocal8Bit(process.readAllStandardError()) + process.errorString();
        return false;
    }
    output = QString::fromUtf8(process.readAllStandardOutput());
    return true;
}
