#pragma once

#include <QString>

/// Keys as the window system brings them, `msAKey` apart by their own time, to the window that is worked with; '\n' is
/// Enter, and '\a' a pause of a tenth of a second. They take no time themselves.
void PressKeys(const QString& keys, int msAKey);
/// Presses a key and lets it repeat, told as X does: no event says that it is a repeat.
void HoldKey(Qt::Key key);
void RepeatKey(Qt::Key key);

/// A scanner that ends its code with Enter.
inline void ScannerTypes(const QString& code)
{
    PressKeys(code + u'\n', 20);
}
/// The same keys from a person's hands.
inline void HandTypes(const QString& keys)
{
    PressKeys(keys, 120);
}
