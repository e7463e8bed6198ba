#pragma once

#include <QSizeF>
#include <QString>

#include <functional>

class QPainter;
class QPrinter;

/// Paints a picture of `size` into a painter; `pixel` is the size of a dot of the device there.
using PicturePainter = std::function<void(QPainter& painter, double pixel)>;

/// Write the picture into the file at once, or not at all: false when it cannot be written, and what was there stays.
bool SaveAsPng(const PicturePainter& paint, QSize size, const QString& path);
bool SaveAsSvg(const PicturePainter& paint, QSize size, const QString& title, const QString& path);

/// Prints the picture as large as it fits on one page. False when the printer does not take it.
bool PrintPicture(const PicturePainter& paint, QSize size, const QString& title, QPrinter& printer);
