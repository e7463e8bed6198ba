#pragma once

class Connection;

/// The statements of one act of the user, committed together when it goes out of scope, also when a statement failed
/// on the way: what ran before the failure stays. Only the death of the process, or a disk without room for it, undoes
/// it. Nests: the outermost one commits. None may be open while the user is asked something.
class Batch {
public:
    /// Throws RuntimeError when the file cannot be written now.
    explicit Batch(Connection& connection);
    /// Throws RuntimeError when the commit fails, unless another failure is on its way; the rows are as before then.
    ~Batch() noexcept(false);
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;

private:
    Connection& m_connection;
    int m_exceptions;
};
