#pragma once

#include <QtGlobal>

/// The item that the item record edits, NewRow for a new one. The record puts the id of an item it added here.
extern qint32 gEditItemId;
