#include "ViewStyle.h"

QFont viewFont(int size, bool bold)
{
    QFont font(QStringLiteral("Arial"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}
