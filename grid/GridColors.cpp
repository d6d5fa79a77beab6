#include "GridColors.h"

namespace GridColors {

QColor systemColor(int index, const QPalette &palette)
{
    switch (index) {
    case WindowText:
        return palette.color(QPalette::Active, QPalette::Text);
    case Highlight:
        return palette.color(QPalette::Active, QPalette::Highlight);
    case HighlightText:
        return palette.color(QPalette::Active, QPalette::HighlightedText);
    case ButtonFace:
        return palette.color(QPalette::Active, QPalette::Button);
    case ButtonShadow:
        return palette.color(QPalette::Active, QPalette::Dark);
    case GrayText:
        return palette.color(QPalette::Disabled, QPalette::Text);
    case ButtonText:
        return palette.color(QPalette::Active, QPalette::ButtonText);
    case ButtonHighlight3D:
        return palette.color(QPalette::Active, QPalette::Light);
    case DarkShadow3D:
        return palette.color(QPalette::Active, QPalette::Shadow);
    case Light3D:
        return palette.color(QPalette::Active, QPalette::Midlight);
    case WindowBackground:
    default:
        return palette.color(QPalette::Active, QPalette::Base);
    }
}

QColor toColor(quint32 value, const QPalette &palette)
{
    if (value & SystemColorTag)
        return systemColor(static_cast<int>(value & 0xFFu), palette);
    return QColor(static_cast<int>(value & 0xFFu), static_cast<int>((value >> 8) & 0xFFu),
                  static_cast<int>((value >> 16) & 0xFFu));
}

quint32 fromColor(const QColor &color)
{
    return static_cast<quint32>(color.red()) | (static_cast<quint32>(color.green()) << 8)
            | (static_cast<quint32>(color.blue()) << 16);
}

QColor blend(const QColor &a, const QColor &b, double t)
{
    const auto mix
            = [t](int from, int to) { return static_cast<int>(from + (to - from) * t + 0.5); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

} // namespace GridColors
