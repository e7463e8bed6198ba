#pragma once

#include <QString>

#include <ostream>

/// Lets GoogleTest show Qt's texts as text.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
