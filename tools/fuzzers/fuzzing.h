#pragma once

#include "base/runtime_error.h"

#include <QByteArrayView>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

/// What the fuzzers share. Each is one source that defines Fuzz.

/// Takes an input apart from the front. At its end there are zeros and empty texts.
class FuzzInput {
public:
    explicit FuzzInput(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }
    bool AtEnd() const { return m_rest.isEmpty(); }
    unsigned Byte();
    qint64 Number(); ///< of eight bytes
    QByteArrayView Line(); ///< up to the next line feed, which is passed over
    QByteArrayView Rest(); ///< all that is left

private:
    QByteArrayView Take(qsizetype length);

    QByteArrayView m_rest;
};

/// Reads one input and holds what was read against what must be so.
void Fuzz(FuzzInput input);

/// Ends the process where `holds` is false: the fuzzer keeps the input, the replayer has named it.
void Expect(bool holds, const char* what);

/// Runs what may fail with an error that the user is told. False when it did; any other end is a finding.
template <typename Act>
bool Succeeds(Act&& act)
{
    try {
        act();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// Bytes as a text, `most` of them. What is no UTF-8 becomes half of a surrogate pair, which a typed text may hold too.
QString AnyText(QByteArrayView bytes, qsizetype most = std::numeric_limits<qsizetype>::max());

/// The text in UTF-8, halves of surrogate pairs as the replacement sign.
std::string Utf8Of(const QString& text);

/// One of the locales whose numbers and dates differ most, United States for the choice 'A'.
void ChooseLocale(unsigned choice);

/// Called by the fuzzing engine and by the replayer.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
