#pragma once

#include <QIcon>

/// The two lists of toolbar pictures, seven each, numbered from 1 in an order of their own. Both hold the same
/// pictures.
QIcon ImageOfImToolbar(int number);
QIcon ImageOfImageListXP(int number);

/// An icon or picture of the program by its file name without extension.
QIcon ProgramIcon(const QString& name);
QPixmap ProgramPicture(const QString& name, QSize size, qreal devicePixelRatio);
