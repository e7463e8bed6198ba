#pragma once

#include <functional>
#include <vector>

/// Times in milliseconds, most of all by the middle one and by the one that only a hundredth of all exceed.
class Times {
public:
    void Add(double milliseconds) { m_times.push_back(milliseconds); }
    double Median() const { return Share(0.5); }
    double Percentile99() const { return Share(0.99); }

private:
    double Share(double share) const;

    std::vector<double> m_times;
};

double MillisecondsOf(const std::function<void()>& act);

/// Measures two things in turn, so that both meet the same state of the machine.
struct Pair {
    Times program, floor;
};
Pair MeasureInTurn(int rounds, const std::function<void()>& program, const std::function<void()>& floor);

/// Of memory that the program holds, without what it has only reserved.
double MegabytesInUse();

/// One line of the table: what was measured, what the floor took, and the most that is allowed for that floor.
/// Remembers whether any line was above its limit.
void PrintFigure(const char* subject, double measured, double floor, double limit, const char* unit);
bool AllWithinLimits();
