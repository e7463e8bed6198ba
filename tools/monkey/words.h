#pragma once

#include "make_database/dice.h"

#include <QString>
#include <QStringList>

/// What the monkey types.

/// Mostly what people type, sometimes what they never would.
QString PickText(Dice& dice);
/// A code of the shop, one that no item has, or no code at all.
QString PickCode(const QStringList& codes, Dice& dice);
/// The name of a file in the monkey's own folder, which may be there or not.
QString PickFileName(Dice& dice);
/// Puts files of all kinds, good and bad, in the folder.
void PutFiles(const QString& folder);
