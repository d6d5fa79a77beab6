#include "TextFitting.h"

namespace {

const QChar kEllipsis(0x2026);

// Length of the longest prefix of `text` (at least one character, so that a line always moves
// on) that fits in `width`.
int fittingPrefixLength(const QString &text, ReportFont font, double width,
                        const TextMeasure &measure)
{
    int low = 1;
    int high = static_cast<int>(text.size());
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (measure.width(text.left(middle), font) <= width)
            low = middle;
        else
            high = middle - 1;
    }
    return low;
}

// Appends a word too long for any line, cut into pieces that fit; the last piece stays open in
// `line` so that following words may join it.
void breakLongWord(QString word, ReportFont font, double width, const TextMeasure &measure,
                   QStringList &lines, QString &line)
{
    while (measure.width(word, font) > width && word.size() > 1) {
        const int length = fittingPrefixLength(word, font, width, measure);
        lines.append(word.left(length));
        word = word.mid(length);
    }
    line = word;
}

} // namespace

QStringList wrapText(const QString &text, ReportFont font, double width, const TextMeasure &measure)
{
    QStringList lines;
    QString line;
    const QStringList words = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const QString candidate = line.isEmpty() ? word : line + QLatin1Char(' ') + word;
        if (measure.width(candidate, font) <= width) {
            line = candidate;
            continue;
        }
        if (!line.isEmpty())
            lines.append(line);
        line.clear();
        breakLongWord(word, font, width, measure, lines, line);
    }
    if (!line.isEmpty() || lines.isEmpty())
        lines.append(line);
    return lines;
}

QString elideText(const QString &text, ReportFont font, double width, ElideSide side,
                  const TextMeasure &measure)
{
    if (measure.width(text, font) <= width)
        return text;
    const double room = width - measure.width(kEllipsis, font);
    if (room < 0)
        return QString();
    // The longest part of the kept side that fits beside the ellipsis.
    int low = 0;
    int high = static_cast<int>(text.size());
    auto part = [&](int length) {
        return side == ElideSide::Right ? text.left(length) : text.right(length);
    };
    while (low < high) {
        const int middle = (low + high + 1) / 2;
        if (measure.width(part(middle), font) <= room)
            low = middle;
        else
            high = middle - 1;
    }
    return side == ElideSide::Right ? part(low) + kEllipsis : kEllipsis + part(low);
}
