#pragma once

#include "records/record_list.h"

/// How the customer finders list a match: name, address, post code and phone, from a statement that selects `id`,
/// `firstname`, `lastname`, `address1`, `address2`, `postcode` and `phone`. The address takes up spare width.
struct CustomerMatchWidths {
    int name, address, postCode, phone; ///< twips
};
QList<ListColumn> CustomerMatchColumns(const CustomerMatchWidths& widths);
