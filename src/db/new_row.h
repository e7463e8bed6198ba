#pragma once

#include <QtGlobal>

/// Stands in an edit global for a record that has no row yet.
constexpr qint32 NewRow = -1;
