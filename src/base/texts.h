#pragma once

#include <QStringView>

/// The first `length` characters of a text, one fewer where the last would be half of one outside the basic plane, such
/// as an emoji.
inline QStringView Shortened(QStringView text, qsizetype length)
{
    if (text.size() <= length)
        return text;
    return text.left(length > 0 && text.at(length - 1).isHighSurrogate() ? length - 1 : length);
}
