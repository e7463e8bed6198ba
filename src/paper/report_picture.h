#pragma once

#include <QImage>
#include <QSize>
#include <QString>

/// The picture of a file, turned as its camera says and no larger than `most` pixels. Null when the file is missing or
/// is no picture, or one that would not fit into memory.
QImage ReadPicture(const QString& path, QSize most);

/// The picture as it looks on white paper: nothing of it is clear any more.
QImage OnPaper(const QImage& picture);
