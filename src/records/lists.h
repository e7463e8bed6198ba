#pragma once

#include "controls/combo_box.h"
#include "db/connection.h"

/// Adds an entry for each row of a statement: its second column's text, its first column as item data. Selects nothing.
void FillCombo(ComboBox* combo, const Sql& sql);
/// Empties `combo` and fills it with the price lists by name.
void FillPriceLists(ComboBox* combo);
/// Selects the price list `id` among those that FillPriceLists filled in; where it was deleted the default list.
void SelectPriceList(ComboBox* combo, qint64 id);
