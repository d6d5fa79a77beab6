#pragma once

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QSizeF>

// Fonts and colours of the channel drawings. Sizes are in the drawing's own units (points in a
// report, pixels on screen), so fonts are sized in pixels: a point size would be scaled twice on
// a high-resolution printer.
QFont viewFont(int size, bool bold = false);

// The top left of a box of `size` placed at `anchor` as `align` says (left, centred or right;
// top, centred or bottom): the labels and notes of the drawings hang on their anchors this way.
QPointF alignedTopLeft(QPointF anchor, const QSizeF &size, Qt::Alignment align);

namespace ViewColour {
const QColor water(0x9c, 0xc8, 0xeb);
const QColor waterLine(0x1f, 0x5f, 0xa8);
const QColor ground(0xe8, 0xdc, 0xc4);
const QColor groundLine(0x6b, 0x4f, 0x2a);
const QColor storage(0x5b, 0x8d, 0x6a);
const QColor critical(0xc0, 0x39, 0x2b);
const QColor dimension(0x30, 0x30, 0x30);
const QColor axis(0x50, 0x50, 0x50);
const QColor clipped(0x6a, 0xb0, 0x6f);
const QColor inflow(0x1f, 0x5f, 0xa8);
const QColor rate(0xc0, 0x39, 0x2b);
const QColor velocity(0xd9, 0x7a, 0x1a);
const QColor inlet(0x2e, 0x8b, 0x57);
} // namespace ViewColour
