#include "fuzzing.h"

#include "base/clock.h"
#include "base/regional.h"

#include <QLocale>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>

namespace {

constexpr const char* Locales[] = {"en_US", "de_DE", "fr_FR", "de_CH", "sv_SE", "ar_EG", "fa_IR", "hi_IN", "ja_JP",
    "pt_PT", "en_IN", "bn_BD", "he_IL", "ff_Adlm_GN", "bg_BG", "hu_HU"};

void FixSurroundings()
{
    // There some days have no midnight.
    qputenv("TZ", "America/Sao_Paulo");
    SetClock([] { return MomentOf(QDate(2026, 3, 14), QTime(10, 30)); });
    ChooseLocale('A');
}

} // namespace

unsigned FuzzInput::Byte()
{
    const QByteArrayView byte = Take(1);
    return byte.isEmpty() ? 0 : uint8_t(byte.front());
}

qint64 FuzzInput::Number()
{
    const QByteArrayView bytes = Take(sizeof(qint64));
    qint64 number = 0;
    if (!bytes.isEmpty())
        std::memcpy(&number, bytes.data(), size_t(bytes.size()));
    return number;
}

QByteArrayView FuzzInput::Line()
{
    const qsizetype end = m_rest.indexOf('\n');
    const QByteArrayView line = Take(end < 0 ? m_rest.size() : end);
    Take(1);
    return line;
}

QByteArrayView FuzzInput::Rest()
{
    return Take(m_rest.size());
}

QByteArrayView FuzzInput::Take(qsizetype length)
{
    const QByteArrayView taken = m_rest.first(std::min(length, m_rest.size()));
    m_rest = m_rest.sliced(taken.size());
    return taken;
}

void Expect(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

QString AnyText(QByteArrayView bytes, qsizetype most)
{
    return QString::fromUtf8(bytes.first(std::min(bytes.size(), most)))
        .replace(QChar(QChar::ReplacementCharacter), QChar(0xD83D));
}

std::string Utf8Of(const QString& text)
{
    QString whole = text;
    for (qsizetype at = 0; at < whole.size(); ++at) {
        const bool pair = whole.at(at).isHighSurrogate() && at + 1 < whole.size() && whole.at(at + 1).isLowSurrogate();
        if (pair)
            ++at;
        else if (whole.at(at).isSurrogate())
            whole[at] = QChar(QChar::ReplacementCharacter);
    }
    return whole.toStdString();
}

void ChooseLocale(unsigned choice)
{
    static const char* chosen = nullptr;
    const char* locale = Locales[(choice + std::size(Locales) - 'A' % std::size(Locales)) % std::size(Locales)];
    if (locale == chosen)
        return;
    chosen = locale;
    SetRegional(QLocale(QLatin1String(locale)));
}

int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    [[maybe_unused]] static const bool once = (FixSurroundings(), true);
    Fuzz(FuzzInput(QByteArrayView(data, qsizetype(size))));
    return 0;
}
