#include "controls/fit_grid_columns.h"

#include "controls/flex_grid.h"
#include "controls/flex_grid_model.h"
#include "controls/layout.h"

#include <QFontMetrics>
#include <QHeaderView>
#include <QStyle>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace {

constexpr int SpareTwips = 100;
// A column for a whole text of this length would be wider than any screen.
constexpr size_t MeasuredBytes = 500;

/// How wide texts are, without laying most of them out: the sum of what each letter adds behind the one before it,
/// which takes in the kerning. Of the scripts that come behind the Cyrillic one each letter counts with all of its
/// width.
class Ruler {
public:
    explicit Ruler(const QFontMetricsF& metrics)
        : m_metrics(metrics)
        , m_pairs(PairedLetters * PairedLetters, Unknown)
    {
        m_places.fill(NoPlace);
        for (char32_t letter = 0; letter < FirstShared; ++letter) {
            m_places[letter] = quint8(letter);
            m_letters[letter] = letter;
        }
        m_widest = float(std::max(metrics.maxWidth(), metrics.height()));
    }

    /// The width of the text when it is above `width`, else `width`.
    int Widened(int width, std::string_view utf8)
    {
        utf8 = utf8.substr(0, MeasuredBytes);
        if (float(utf8.size()) * m_widest <= float(width) || Estimate(utf8) <= float(width) + Rounding)
            return width;
        return std::max(width, int(std::ceil(Advance(QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))))));
    }

private:
    static constexpr float Unknown = -1e9F;
    static constexpr float Rounding = 0.5F; ///< what the sum of a long text may be off
    static constexpr size_t PairedLetters = 256;
    static constexpr quint8 NoPlace = 0xFF;
    static constexpr quint8 FirstShared = 0x80;
    static constexpr char32_t FirstUnpaired = 0x530;

    float Advance(const QString& text) const { return float(m_metrics.horizontalAdvance(text)); }

    float Estimate(std::string_view utf8)
    {
        float sum = 0;
        size_t before = NoPlace;
        for (size_t at = 0; at < utf8.size();) {
            const char32_t letter = NextLetter(utf8, at);
            const size_t place = Place(letter);
            sum += place == NoPlace ? Alone(letter) : Behind(before, place, letter);
            before = place;
        }
        return sum;
    }

    static char32_t NextLetter(std::string_view utf8, size_t& at)
    {
        const auto first = quint8(utf8[at++]);
        if (first < 0x80)
            return first;
        char32_t letter = first & (first < 0xE0 ? 0x1F : first < 0xF0 ? 0x0F : 0x07);
        while (at < utf8.size() && (quint8(utf8[at]) & 0xC0) == 0x80)
            letter = letter << 6 | (quint8(utf8[at++]) & 0x3F);
        return letter;
    }

    /// Where the letter stands in the table of pairs. The letters beyond ASCII share the places that are left, as they
    /// come.
    size_t Place(char32_t letter)
    {
        if (letter >= FirstUnpaired)
            return NoPlace;
        quint8& place = m_places[letter];
        if (place == NoPlace && m_nextPlace < NoPlace) {
            place = m_nextPlace++;
            m_letters[place] = letter;
        }
        return place;
    }

    float Behind(size_t before, size_t place, char32_t letter)
    {
        float& known = m_pairs[before * PairedLetters + place];
        if (known == Unknown)
            known = before == NoPlace
                ? Alone(letter)
                : Advance(QString::fromUcs4(&m_letters[before], 1) + QString::fromUcs4(&letter, 1))
                    - Alone(m_letters[before]);
        return known;
    }

    float Alone(char32_t letter)
    {
        float& known = m_alone.try_emplace(letter, Unknown).first->second;
        if (known == Unknown)
            known = Advance(QString::fromUcs4(&letter, 1));
        return known;
    }

    QFontMetricsF m_metrics;
    float m_widest = 0;
    std::array<quint8, FirstUnpaired> m_places{};
    quint8 m_nextPlace = FirstShared;
    std::array<char32_t, PairedLetters> m_letters{};
    std::vector<float> m_pairs;
    std::unordered_map<char32_t, float> m_alone;
};

} // namespace

void FitGridColumns(FlexGrid* grid)
{
    const FlexGridModel* model = grid->Model();
    const int cols = model->columnCount();
    std::vector<int> widths(size_t(cols), 0);
    Ruler titleRuler(grid->horizontalHeader()->fontMetrics());
    for (int col = 0; col < cols; ++col) {
        const QByteArray title = model->Title(col).toUtf8();
        widths[size_t(col)] = titleRuler.Widened(0, {title.constData(), size_t(title.size())});
    }
    // Row by row, as the texts lie in memory.
    Ruler ruler(grid->fontMetrics());
    for (int row = 0; row < model->rowCount(); ++row) {
        const int cells = model->CellsOf(row);
        for (int col = 0; col < cells; ++col)
            widths[size_t(col)] = ruler.Widened(widths[size_t(col)], model->Utf8(row, col));
    }
    const int margins = 2 * (grid->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, grid) + 1) + 1;
    for (int col = 0; col < cols; ++col) {
        const int spare = std::max(PixelsToTwips(margins), SpareTwips);
        grid->SetColWidth(col, PixelsToTwips(widths[size_t(col)]) + spare);
    }
}
