#include "PdfProbe.h"

#include <QProcess>
#include <QRegularExpression>

QString simplifiedText(const QString &text)
{
    return text.simplified();
}

namespace {
QString unescapeHtml(QString text)
{
    text.replace(QStringLiteral("&lt;"), QStringLiteral("<"));
    text.replace(QStringLiteral("&gt;"), QStringLiteral(">"));
    text.replace(QStringLiteral("&quot;"), QStringLiteral("\""));
    text.replace(QStringLiteral("&#39;"), QStringLiteral("'"));
    text.replace(QStringLiteral("&amp;"), QStringLiteral("&"));
    return text;
}
} // namespace

PdfProbe::PdfProbe(const QString &pdfPath)
{
    QString html;
    if (!runPdftotext({ QStringLiteral("-bbox"), pdfPath, QStringLiteral("-") }, html))
        return;
    static const QRegularExpression pagePattern(
            QStringLiteral("<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">"));
    static const QRegularExpression wordPattern(QStringLiteral(
            "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">"
            "([^<]*)</word>"));
    // Walk pages and words in document order.
    static const QRegularExpression token(pagePattern.pattern() + QStringLiteral("|")
                                          + wordPattern.pattern());
    auto it = token.globalMatch(html);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        if (!match.captured(1).isEmpty()) {
            m_pages.push_back({ match.captured(1).toDouble(), match.captured(2).toDouble() });
            continue;
        }
        PdfWord word;
        word.page = pageCount();
        const double x0 = match.captured(3).toDouble();
        const double y0 = match.captured(4).toDouble();
        word.box = QRectF(QPointF(x0, y0),
                          QPointF(match.captured(5).toDouble(), match.captured(6).toDouble()));
        word.text = unescapeHtml(match.captured(7));
        m_words.push_back(word);
    }
    QString text; // pdftotext ends each page with a form feed
    if (!runPdftotext({ QStringLiteral("-layout"), pdfPath, QStringLiteral("-") }, text))
        return;
    for (const QString &page : text.split(QLatin1Char('\f')).mid(0, pageCount()))
        m_pageTexts.append(simplifiedText(page));
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

QString PdfProbe::pageText(int page) const
{
    return m_pageTexts.value(page - 1);
}

QString PdfProbe::text() const
{
    return m_pageTexts.join(QLatin1Char(' '));
}
