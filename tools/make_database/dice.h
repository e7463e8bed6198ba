#pragma once

#include <QtGlobal>

#include <random>

/// Chance that falls the same way for the same seed, on every machine and with every compiler: the standard fixes the
/// engine's numbers, but not those of its distributions.
class Dice {
public:
    explicit Dice(quint64 seed)
        : m_engine(seed)
    {
    }

    /// Both ends included.
    int Between(int lowest, int highest) { return lowest + int(m_engine() % quint64(highest - lowest + 1)); }
    bool Chance(int percent) { return Between(1, 100) <= percent; }

    template <typename List>
    const auto& Pick(const List& list)
    {
        return list[size_t(Between(0, int(std::size(list)) - 1))];
    }

private:
    std::mt19937_64 m_engine;
};
