#include "base/sign_of_life.h"

namespace {

void (*gShow)() = nullptr;
void (*gShowFileWait)() = nullptr;

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

void SignOfFileWait()
{
    if (gShowFileWait)
        gShowFileWait();
}

void SetSignOfFileWait(void (*show)())
{
    gShowFileWait = show;
}
