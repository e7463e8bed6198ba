#pragma once

#include "base/runtime_error.h"

#include <QObject>

#include <functional>
#include <type_traits>
#include <utility>

/// True once a run-time error has ended the program: the connection refuses every statement from then on, and guarded
/// handlers no longer run.
bool ProgramHasEnded();

/// Shows the error box and ends the process. No window is closed and nothing is written on the way.
void EndProgram(const RuntimeError& error);

/// Shows the text of an error to the user. Until the screens' own box is installed it goes to the error stream.
void SetErrorBox(void (*show)(const QString& text));

/// Tests stand in for the end of the process: `end` is called in place of the box and the exit. An empty function
/// brings the real end back and forgets that the program had ended.
void SetProgramEnd(std::function<void(const RuntimeError&)> end);

/// The exception that is being handled, as a run-time error: what the standard library throws becomes "Out of memory"
/// (7) or "Internal error" (51). Call it in a catch block only.
RuntimeError CaughtError();

/// Runs `body` so that no exception crosses Qt's own frames: whatever it throws ends the program.
/// Every slot and every overridden event handler that can reach a statement runs inside it.
template <typename Body>
void Guarded(Body&& body)
{
    if (ProgramHasEnded())
        return;
    try {
        body();
    } catch (...) {
        EndProgram(CaughtError());
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

/// The handler as a function of its own: a member is bound to its object.
template <typename Receiver, typename Handler>
auto BoundHandler(Receiver* receiver, Handler handler)
{
    if constexpr (std::is_member_function_pointer_v<Handler>)
        return std::bind_front(handler, receiver);
    else
        return handler;
}

/// Connects a signal to a guarded handler, which may take fewer arguments than the signal gives: a member of the
/// receiver or any function. The connection lives as long as sender and receiver both do.
template <typename Sender, typename Owner, typename... Arguments, typename Receiver, typename Handler>
void On(Sender* sender, void (Owner::*signal)(Arguments...), Receiver* receiver, Handler handler)
{
    QObject::connect(
        sender, signal, receiver, [call = BoundHandler(receiver, std::move(handler))](Arguments... arguments) mutable {
            Guarded([&] {
                if constexpr (std::is_invocable_v<decltype(call)&, Arguments...>)
                    call(arguments...);
                else if constexpr (std::is_invocable_v<decltype(call)&>)
                    call();
                else
                    [&](auto&& first, auto&&...) { call(first); }(arguments...);
            });
        });
}
