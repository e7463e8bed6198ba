#pragma once

/// Shows the hourglass while it lives. Nests.
class Hourglass {
public:
    Hourglass();
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

/// Shows the arrow while it lives where there was an hourglass: over a dialog, which waits for the user.
class ArrowOverHourglass {
public:
    ArrowOverHourglass();
    ~ArrowOverHourglass();
    ArrowOverHourglass(const ArrowOverHourglass&) = delete;
    ArrowOverHourglass& operator=(const ArrowOverHourglass&) = delete;

private:
    bool m_waiting;
};
