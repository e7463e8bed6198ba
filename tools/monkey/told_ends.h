#pragma once

#include <QString>

/// Why the program may end with the error box of this text after this event; "" where it may not.
QString ReasonToEnd(const QString& boxText, const QString& lastEvent);
