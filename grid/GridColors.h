#pragma once

#include <QColor>
#include <QPalette>

// Colours of the grid as 32-bit colour values: either a plain 0x00BBGGRR colour or a system
// colour, tagged by the high bit with the system colour index in the low byte (button face, index
// 15, is 0x8000000F). System colours are taken from the widget's palette, so the grid follows the
// desktop theme.
namespace GridColors {

enum SystemColor : int {
    WindowBackground = 5,
    WindowText = 8,
    Highlight = 13,
    HighlightText = 14,
    ButtonFace = 15,
    ButtonShadow = 16,
    GrayText = 17,
    ButtonText = 18,
    ButtonHighlight3D = 20,
    DarkShadow3D = 21,
    Light3D = 22,
};

constexpr quint32 SystemColorTag = 0x80000000u;

constexpr quint32 tagged(SystemColor index)
{
    return SystemColorTag | static_cast<quint32>(index);
}

// The palette colour that stands for a system colour index; an unknown index gives the window
// background.
QColor systemColor(int index, const QPalette &palette);

// A 32-bit colour value turned into a colour: system colours through the palette.
QColor toColor(quint32 value, const QPalette &palette);

// A plain colour as its 0x00BBGGRR value.
quint32 fromColor(const QColor &color);

// The colour a fraction t of the way from a to b.
QColor blend(const QColor &a, const QColor &b, double t);

} // namespace GridColors
