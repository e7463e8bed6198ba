#pragma once

#include <type_traits>

class Connection;

namespace batch {
void Begin(Connection& connection);
void End(Connection& connection);
/// As End while a failure is on its way: that one already ends the act, so one of the commit is dropped.
void EndAfterFailure(Connection& connection) noexcept;
} // namespace batch

/// Runs `body`, whose statements are one act of the user, and commits them together at its end, also when it throws:
/// what ran before the failure stays. Only the death of the process, or a disk without room for it, undoes the act.
/// Nests: the outermost one commits. None may be open while the user is asked something. Returns what `body` returns.
/// Throws RuntimeError when the file cannot be written now (`body` has not run then) and when the commit fails (the
/// rows are as before then).
template <typename Body>
auto InBatch(Connection& connection, Body&& body)
{
    batch::Begin(connection);
    const auto run = [&] {
        try {
            return body();
        } catch (...) {
            batch::EndAfterFailure(connection);
            throw;
        }
    };
    if constexpr (std::is_void_v<decltype(body())>) {
        run();
        batch::End(connection);
    } else {
        auto result = run();
        batch::End(connection);
        return result;
    }
}
