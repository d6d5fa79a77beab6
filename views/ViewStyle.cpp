#include "ViewStyle.h"

QFont viewFont(int size, bool bold)
{
    QFont font(QStringLiteral("Arial"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(size);
    font.setBold(bold);
    return font;
}

QPointF alignedTopLeft(QPointF anchor, const QSizeF &size, Qt::Alignment align)
{
    if (align & Qt::AlignHCenter)
        anchor.rx() -= size.width() / 2;
    else if (align & Qt::AlignRight)
        anchor.rx() -= size.width();
    if (align & Qt::AlignVCenter)
        anchor.ry() -= size.height() / 2;
    else if (align & Qt::AlignBottom)
        anchor.ry() -= size.height();
    return anchor;
}
