#pragma once

#include <QString>

/// What one process of the program tells the one that looks after it, a line each.
enum class Line : char {
    Event = 'E', ///< what is about to be done
    Finding = 'F',
    RunTimeError = 'R', ///< the text of the box that ended the program
    Closed = 'C', ///< the main window was closed
};

class Diary {
public:
    explicit Diary(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    void Write(Line kind, const QString& text) const;

private:
    int m_descriptor;
};
