#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The tips of the day: a text file in the program's folder, one tip a line.
inline constexpr auto TipFileName = "TipOfTheDay.txt";

/// Every line as it stands, blank ones included; nothing when there is no file of this name or it cannot be read.
std::optional<QStringList> ReadTips(const QString& path);

/// The number of the tip after `current`; the first follows the last. Tips are numbered from 1.
int NextTip(int current, int count);

/// What the dialog shows where its tips are missing.
QString TipFileMissingText();
