#pragma once

#include <QString>

/// An article number that no maker uses: the range 20 to 29 is left to each shop for its own goods. `article` has at
/// most ten digits; the thirteenth digit checks the others.
QString ShopEan13(qint64 article);
