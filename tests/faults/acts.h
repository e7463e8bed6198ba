#pragma once

#include "shop.h"

#include <functional>
#include <vector>

inline void Nothing(Shop&) { }

/// Something that a user does, and that is done wholly or not at all.
struct Act {
    const char* name;
    int commits; ///< at most: above 1 where the system does the act in steps, each of them whole
    std::function<void(Shop&)> run;
    std::function<void(Shop&)> prepare = Nothing;
    bool movesGoods = false; ///< into the shop or out of it: stock and what is on invoices do not add up as before
    bool isSilent = false; ///< says nothing of a failure, which costs no more than time
};
const std::vector<Act>& Acts();

/// A file that a user lets the program write.
struct FileAct {
    const char* name;
    bool deletesFirst; ///< the old file is gone before the new one is begun
    std::function<void(Shop&)> run;
};
const std::vector<FileAct>& FileActs();
