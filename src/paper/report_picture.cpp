#include "paper/report_picture.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

QImage ReadPicture(const QString& path, QSize most)
{
    // A pipe or a device would keep the reader waiting for ever.
    if (!QFileInfo(path).isFile())
        return {};
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > most.width() || size.height() > most.height())
        reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

QImage OnPaper(const QImage& picture)
{
    if (!picture.hasAlphaChannel())
        return picture;
    QImage sheet(picture.size(), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter(&sheet).drawImage(0, 0, picture);
    return sheet;
}
