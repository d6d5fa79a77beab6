#pragma once

#include <QString>

class QLabel;
class QWidget;

// The look shared by the Input Data and Results pages.
namespace PageStyle {

// A section heading: bold, with a rule under it that the page's layout stretches across the
// section.
QLabel *makeHeading(const QString &name, const QString &text, QWidget *parent);

// Object name of element `index` of a control array: "txtInput_4".
QString indexedName(const char *arrayName, int index);

} // namespace PageStyle
