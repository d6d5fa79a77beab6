#pragma once

#include "ChannelViews.h"

#include <QImage>
#include <QSize>
#include <QString>

// A channel drawing as a picture: a bitmap for the clipboard, a PNG file or an SVG file (vector).

// The drawing at `size` pixels on a white ground.
QImage channelViewImage(const ChannelViews &views, ChannelView view, const QSize &size);

// Writes the drawing to `path` as PNG at `size` pixels. False with the reason in `error`.
bool writeChannelViewPng(const QString &path, const ChannelViews &views, ChannelView view,
                         const QSize &size, QString *error = nullptr);

// Writes the drawing to `path` as SVG, `size` in points. False with the reason in `error`.
bool writeChannelViewSvg(const QString &path, const ChannelViews &views, ChannelView view,
                         const QSize &size, QString *error = nullptr);
