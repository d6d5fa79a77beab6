#pragma once

#include <QString>
#include <QStringList>

// The type faces of the report. The layout only names them; the paint step (or a test) says how
// wide a text set in each one is.
enum class ReportFont {
    Title, // program name on the first page
    Subtitle,
    Section, // "I.  INPUT DATA", "II.  RESULTS"
    Group, // group headings such as "Channel Geometry"
    Body,
    BodyBold, // key results
    TableHeader, // rating-curve column titles
    Furniture, // page header and footer
};

// Measures texts in the units of the page layout (device pixels when painting).
class TextMeasure
{
public:
    virtual ~TextMeasure() = default;
    // Advance width of `text` on one line.
    virtual double width(const QString &text, ReportFont font) const = 0;
    // Distance from one baseline to the next.
    virtual double lineHeight(ReportFont font) const = 0;
};

// Breaks `text` into lines no wider than `width`: at blanks where it can, inside a word only
// when the word alone is wider than the line. Always at least one line ("" for an empty text),
// so that an empty value still takes its row.
QStringList wrapText(const QString &text, ReportFont font, double width,
                     const TextMeasure &measure);

enum class ElideSide { Left, Right };

// Shortens `text` to fit `width`, replacing what is cut with an ellipsis on the given side;
// returns the text unchanged when it fits, "" when not even the ellipsis fits.
QString elideText(const QString &text, ReportFont font, double width, ElideSide side,
                  const TextMeasure &measure);
