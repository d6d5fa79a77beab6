#include "ChannelViewFiles.h"

#include <QBuffer>
#include <QPainter>
#include <QSaveFile>
#include <QSvgGenerator>

QImage channelViewImage(const ChannelViews &views, ChannelView view, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    paintChannelView(painter, QRectF(QPointF(0, 0), QSizeF(size)), views, view);
    return image;
}

namespace {
// Writes `bytes` whole or not at all: an existing file survives a failed export.
bool saveWhole(const QString &path, const QByteArray &bytes, QString *error)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    if (error)
        *error = file.errorString();
    return false;
}
} // namespace

bool writeChannelViewPng(const QString &path, const ChannelViews &views, ChannelView view,
                         const QSize &size, QString *error)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!channelViewImage(views, view, size).save(&buffer, "PNG")) {
        if (error)
            *error = QStringLiteral("The image could not be encoded.");
        return false;
    }
    return saveWhole(path, bytes, error);
}

bool writeChannelViewSvg(const QString &path, const ChannelViews &views, ChannelView view,
                         const QSize &size, QString *error)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QSvgGenerator svg;
        svg.setOutputDevice(&buffer);
        svg.setSize(size);
        svg.setViewBox(QRect(QPoint(0, 0), size));
        svg.setTitle(channelViewTitle(view));
        svg.setDescription(QStringLiteral("Channel drawing of the swale channel calculator"));
        QPainter painter(&svg);
        painter.fillRect(QRectF(QPointF(0, 0), QSizeF(size)), Qt::white);
        paintChannelView(painter, QRectF(QPointF(0, 0), QSizeF(size)), views, view);
    }
    return saveWhole(path, bytes, error);
}
