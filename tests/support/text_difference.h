#pragma once

#include <QString>

#include <string>

/// The lines in which two texts differ, from the first to the last of them: "-" before those that are missing, "+"
/// before those that are too many; "" when the texts are the same.
std::string Difference(const QString& expected, const QString& found);
