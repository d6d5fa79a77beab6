#pragma once

#include "ChannelViews.h"
#include "ReportContent.h"
#include "TextFitting.h"

#include <QLineF>
#include <QMarginsF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <vector>

// The pure layout step of the report: turns the report content into pages of placed texts,
// rules and shaded bands, in the units of the page (device pixels when painting, anything in a
// test). Nothing here paints; the paint step draws the pages as they are.

struct PlacedText
{
    QRectF rect; // one line of text: top left, width of its column, one line high
    QString text;
    ReportFont font = ReportFont::Body;
    Qt::Alignment alignment = Qt::AlignLeft;
};

enum class RuleStyle { Solid, Dotted };

struct PlacedRule
{
    QLineF line;
    double thickness = 1;
    RuleStyle style = RuleStyle::Solid;
};

// A channel drawing placed on a page; the paint step draws it from the report content.
struct PlacedFigure
{
    QRectF rect;
    ChannelView view = ChannelView::CrossSection;
};

struct ReportPage
{
    std::vector<PlacedText> texts;
    std::vector<PlacedRule> rules;
    std::vector<QRectF> shades; // light grey bands behind table headers and alternate rows
    std::vector<PlacedFigure> figures;
};

// The sheet and its margins, in layout units. Margins leave the printed text within the sheet;
// the page header and footer sit inside the margins too.
struct PageFrame
{
    QSizeF paper;
    QMarginsF margins;
};

// Margins that leave room to print: margins that would leave less than a third of the sheet's
// width or height are scaled down together until that third is left. Negative margins count as 0.
QMarginsF usableMargins(const PageFrame &frame);

extern const char *const kChannelViewsTitle; // "Channel views"

// Lays out the whole report: the title block on the first page, the two sections with their
// groups, the rating-curve table (breaking across pages with its column titles repeated), a page
// header with the program and job names and a footer with the project file and "Page i of n".
// A heading is never left alone at the foot of a page. With channel drawings, a last page
// "Channel views" holds the three of them, one above the other, sized to the page.
std::vector<ReportPage> layoutReport(const ReportContent &content, const PageFrame &frame,
                                     const TextMeasure &measure);
