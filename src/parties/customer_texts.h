#pragma once

#include <string>
#include <string_view>

/// How lists write a customer, in UTF-8.

/// "First Last (Business)", with blanks and brackets only around what is there.
std::string CustomerName(std::string_view firstName, std::string_view lastName, std::string_view businessName);

/// "First Last"; the blank stands also when one of the two is empty.
std::string FirstAndLastName(std::string_view firstName, std::string_view lastName);

/// The two address lines, joined by a comma when there is a second.
std::string CustomerAddress(std::string_view address1, std::string_view address2);
