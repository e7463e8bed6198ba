#include "chart/chart_output.h"

#include "base/files.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QSvgGenerator>

namespace {
constexpr double DotsPerInch = 96; ///< of a picture in its own size
constexpr double InchesPerMeter = 1 / 0.0254;
} // namespace

bool SaveAsPng(const PicturePainter& paint, QSize size, const QString& path)
{
    // Twice the dots of a plain screen, so that it also prints well, at the same size in a document.
    constexpr int Scale = 2;
    QImage image(size * Scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(Scale);
    QPainter painter(&image);
    paint(painter, 1.0 / Scale);
    painter.end();
    const int dotsPerMeter = int(DotsPerInch * Scale * InchesPerMeter);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    return image.save(&bytes, "PNG") && WriteWholeFile(path, bytes.data());
}

bool SaveAsSvg(const PicturePainter& paint, QSize size, const QString& title, const QString& path)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    generator.setResolution(int(DotsPerInch));
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(), size));
    generator.setTitle(title);
    QPainter painter;
    if (!painter.begin(&generator))
        return false;
    paint(painter, 1);
    return painter.end() && WriteWholeFile(path, bytes.data());
}

bool PrintPicture(const PicturePainter& paint, QSize size, const QString& title, QPrinter& printer)
{
    printer.setDocName(title);
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const QSizeF page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
    const double scale = std::min(page.width() / size.width(), page.height() / size.height());
    painter.translate((page.width() - scale * size.width()) / 2, 0);
    painter.scale(scale, scale);
    paint(painter, 1 / scale);
    return painter.end();
}
