#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

/// usage: draw-icon PICTURE.svg SIZE PICTURE.png
/// Draws the picture as a square of SIZE pixels.
int main(int argc, char* argv[])
{
    if (argc != 4) {
        std::fputs("usage: draw-icon PICTURE.svg SIZE PICTURE.png\n", stderr);
        return 2;
    }
    QSvgRenderer renderer(QFile::decodeName(argv[1]));
    const int size = QByteArray(argv[2]).toInt();
    QImage image(size, size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    {
        QPainter painter(&image);
        renderer.render(&painter);
    }
    return renderer.isValid() && image.save(QFile::decodeName(argv[3])) ? 0 : 1;
}
