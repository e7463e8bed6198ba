#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Whether there is a text that begins so, the plain alphabet in either case.
using IsBeginning = std::function<bool(const std::string& beginning)>;

/// The ways to write a text in small and capital letters, as far as there are texts that begin so. The plain alphabet
/// is in lower case in them, and stands for both. What is not of use may be among them, what is of use is never
/// missing. All in UTF-8.
std::vector<std::string> Spellings(std::string_view text, const IsBeginning& isBeginning);
