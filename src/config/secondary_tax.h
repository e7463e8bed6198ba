#pragma once

#include <QString>

/// The secondary tax triple: the one tax of the whole system that is charged on the total. Copied from `settings` at
/// start, and again by whoever changes it there.
struct SecondaryTax {
    static bool SecondaryTaxEnable;
    static double SecondaryTaxPercentage;
    static QString SecondaryTaxName;
};

/// Reads the triple. An empty table gives off, 10 and "2nd Sales Tax". Throws RuntimeError when the statement fails,
/// and leaves the triple as it was.
void LoadSecondaryTax();
