#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

#include <vector>

// Reads back a PDF the way a reviewer would: its text through pdftotext (poppler-utils), and
// every word with its box in points, so tests can check what is printed and where.
struct PdfWord
{
    int page = 0; // from 1
    QRectF box; // points from the sheet's top left corner
    QString text; // as pdftotext's bounding-box output writes it, with HTML escapes
};

class PdfProbe
{
public:
    explicit PdfProbe(const QString &pdfPath);

    bool isValid() const { return m_valid; }
    QString errorString() const { return m_error; }
    int pageCount() const { return static_cast<int>(m_pages.size()); }
    QSizeF pageSize(int page) const { return m_pages[static_cast<size_t>(page - 1)]; } // points

    // The text of one page (from 1) or of all pages, with runs of blanks and line ends collapsed
    // to one blank, so that a caption and its value read as one phrase.
    QString pageText(int page) const { return m_pageTexts.value(page - 1); }
    QString text() const { return m_pageTexts.join(QLatin1Char(' ')); }
    const std::vector<PdfWord> &words() const { return m_words; }

private:
    bool runPdftotext(const QStringList &arguments, QString &output);

    bool m_valid = false;
    QString m_error;
    std::vector<QSizeF> m_pages;
    std::vector<PdfWord> m_words;
    QStringList m_pageTexts;
};
