#pragma once

#include <QString>

#include <functional>
#include <memory>

/// Looks through a database file for damage, on a connection and a thread of its own, while the program is used.
class FileCheck {
public:
    /// `damaged` is called once, on the checking thread, when the file is found damaged; not when it cannot be read or
    /// somebody writes all the time.
    FileCheck(const QString& path, std::function<void()> damaged);
    /// Stops the check where it is.
    ~FileCheck();
    FileCheck(const FileCheck&) = delete;
    FileCheck& operator=(const FileCheck&) = delete;

private:
    class Run;
    std::unique_ptr<Run> m_run;
};
