// Renders the help diagram (an SVG drawing) into a PNG of a given width, keeping the drawing's
// proportions. The build runs it once per help-image size:
//     swale-render-help-image swale.svg swale-small.png 400

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char *argv[])
{
    // The build machine may have no display: the drawing is painted into an image only.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s DRAWING.svg IMAGE.png WIDTH\n", argv[0]);
        return 64;
    }
    bool widthOk = false;
    const int width = QString::fromLocal8Bit(argv[3]).toInt(&widthOk);
    if (!widthOk || width < 16 || width > 8000) {
        std::fprintf(stderr, "%s: the width must be a whole number from 16 to 8000\n", argv[0]);
        return 64;
    }
    QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
    if (!drawing.isValid()) {
        std::fprintf(stderr, "%s: cannot read the drawing %s\n", argv[0], argv[1]);
        return 1;
    }
    const QSizeF box = drawing.viewBoxF().size();
    const int height = qRound(width * box.height() / box.width());
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    drawing.render(&painter, QRectF(0, 0, width, height));
    painter.end();
    if (!image.save(QString::fromLocal8Bit(argv[2]), "PNG")) {
        std::fprintf(stderr, "%s: cannot write %s\n", argv[0], argv[2]);
        return 1;
    }
    return 0;
}
