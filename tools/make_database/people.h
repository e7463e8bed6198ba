#pragma once

#include "dice.h"

#include <QString>

/// Invented people and firms, of the variety that a shop's books show: accents, apostrophes, other scripts, very long
/// names and gaps.

struct Party {
    QString firstName, lastName;
    QString businessName;
    QString address1, address2, city, state, postCode, country;
    QString phone, fax, email;
};

/// A person, a firm, or a person of a firm; fields that people leave out are empty.
Party InventCustomer(Dice& dice);
/// A firm with every field filled.
Party InventVendor(Dice& dice, const QString& businessName);
