#pragma once

#include <QString>

/// Shows the hourglass while it lives. Nests: the outermost one says what is waited for, and of each wait the clock
/// starts with it. After a second the text stands in the lower left corner of the window in front, and the windows are
/// painted again and again, as far as SignOfLife is told. No event is handled meanwhile.
class Hourglass {
public:
    /// `doing` as in "Reading the items..."; empty where the window itself says so.
    explicit Hourglass(const QString& doing);
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

/// Lets a statement that waits for another program show an hourglass and say so.
void TellWaitsForTheFile();

/// Shows the arrow while it lives where there was an hourglass: over a dialog, which waits for the user. The clock of
/// the wait starts anew behind it.
class ArrowOverHourglass {
public:
    ArrowOverHourglass();
    ~ArrowOverHourglass();
    ArrowOverHourglass(const ArrowOverHourglass&) = delete;
    ArrowOverHourglass& operator=(const ArrowOverHourglass&) = delete;

private:
    bool m_waiting;
};
