#include "base/guard.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

bool gEnded = false;
std::function<void(const RuntimeError&)> gStandIn;

void PrintError(const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

void (*gShowError)(const QString& text) = PrintError;

} // namespace

bool ProgramHasEnded()
{
    return gEnded;
}

void EndProgram(const RuntimeError& error)
{
    // The box of the first error may still be up while a second one arrives: the first is the one to know of.
    if (gEnded)
        return;
    gEnded = true;
    if (gStandIn) {
        gStandIn(error);
        return;
    }
    gShowError(error.BoxText());
    std::_Exit(EXIT_FAILURE);
}

void SetErrorBox(void (*show)(const QString& text))
{
    gShowError = show;
}

void SetProgramEnd(std::function<void(const RuntimeError&)> end)
{
    gStandIn = std::move(end);
    gEnded = false;
}

RuntimeError CaughtError()
{
    try {
        throw;
    } catch (const RuntimeError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {7, QStringLiteral("Out of memory")};
    } catch (const std::exception& error) {
        return {51, QStringLiteral("Internal error: %1").arg(QString::fromUtf8(error.what()))};
    } catch (...) {
        return {51, QStringLiteral("Internal error")};
    }
}
