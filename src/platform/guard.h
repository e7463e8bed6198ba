#pragma once

#include "platform/runtime_error.h"

#include <QObject>

#include <functional>
#include <type_traits>

/// True once a run-time error has ended the program: the connection refuses every statement from then on, and guarded
/// handlers no longer run.
bool ProgramHasEnded();

/// Shows the error box and ends the process. No window is closed and nothing is written on the way.
void EndProgram(const RuntimeError& error);

/// Tests stand in for the end of the process: `end` is called in place of the box and the exit. An empty function
/// brings the real end back and forgets that the program had ended.
void SetProgramEnd(std::function<void(const RuntimeError&)> end);

/// Runs `body` so that no exception crosses Qt's own frames: a RuntimeError ends the program.
/// Every slot and every overridden event handler that can reach a statement runs inside it.
template <typename Body>
void Guarded(Body&& body)
{
    if (ProgramHasEnded())
        return;
    try {
        body();
    } catch (const RuntimeError& error) {
        EndProgram(error);
    }
}

/// Runs one statement of a stretch whose failures are dropped. True when it went through.
template <typename Body>
bool Ignoring(Body&& body)
{
    try {
        body();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// Connects a signal to a guarded handler, which may take fewer arguments than the signal gives. The connection lives
/// as long as the sender.
template <typename Sender, typename Owner, typename... Arguments, typename Handler>
void On(Sender* sender, void (Owner::*signal)(Arguments...), Handler handler)
{
    QObject::connect(sender, signal, sender, [handler](Arguments... arguments) mutable {
        Guarded([&] {
            if constexpr (std::is_invocable_v<Handler&, Arguments...>)
                handler(arguments...);
            else if constexpr (std::is_invocable_v<Handler&>)
                handler();
            else
                [&](auto&& first, auto&&...) { handler(first); }(arguments...);
        });
    });
}
