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
#include <vector>

namespace {

constexpr int SpareTwips = 100;
// A column for a whole text of this length would be wider than any screen.
constexpr size_t MeasuredBytes = 500;

/// Tells of most texts that they are narrower than another without measuring them.
class Ruler {
public:
    explicit Ruler(const QFontMetrics& metrics)
        : m_metrics(metrics)
    {
        for (size_t byte = 0; byte < m_advances.size(); ++byte) {
            // A character of several bytes counts as a wide one at its first byte and as nothing at the others.
            if (byte < FirstOfSeveral)
                m_advances[byte] = Advance(QChar(ushort(byte)));
            else if (byte >= FirstLead)
                m_advances[byte] = int(std::ceil(std::max(m_metrics.maxWidth(), m_metrics.height())));
            m_widest = std::max(m_widest, m_advances[byte]);
        }
    }

    /// The width of the text when it is above `width`, else `width`.
    int Widened(int width, std::string_view utf8) const
    {
        utf8 = utf8.substr(0, MeasuredBytes);
        if (qint64(utf8.size()) * m_widest <= width || Estimate(utf8) <= width)
            return width;
        return std::max(width, Advance(QString::fromUtf8(utf8.data(), qsizetype(utf8.size()))));
    }

private:
    static constexpr size_t FirstOfSeveral = 0x80;
    static constexpr size_t FirstLead = 0xC0;

    /// Rounded up: a text in less room is cut short, and none is wider than the sum of its characters.
    int Advance(const QString& text) const { return int(std::ceil(m_metrics.horizontalAdvance(text))); }

    int Estimate(std::string_view utf8) const
    {
        int sum = 0;
        for (const char byte : utf8)
            sum += m_advances[quint8(byte)];
        return sum;
    }

    QFontMetricsF m_metrics;
    std::array<int, 256> m_advances{};
    int m_widest = 0;
};

} // namespace

void FitGridColumns(FlexGrid* grid)
{
    const FlexGridModel* model = grid->Model();
    const int cols = model->columnCount();
    std::vector<int> widths(size_t(cols), 0);
    const Ruler titleRuler(grid->horizontalHeader()->fontMetrics());
    for (int col = 0; col < cols; ++col) {
        const QByteArray title = model->Title(col).toUtf8();
        widths[size_t(col)] = titleRuler.Widened(0, {title.constData(), size_t(title.size())});
    }
    // Row by row, as the texts lie in memory.
    const Ruler ruler(grid->fontMetrics());
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
