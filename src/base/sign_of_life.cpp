#include "base/sign_of_life.h"

namespace {

void (*gShow)() = nullptr;

} // namespace

void SignOfLife()
{
    if (gShow)
        gShow();
}

void SetSignOfLife(void (*show)())
{
    gShow = show;
}
