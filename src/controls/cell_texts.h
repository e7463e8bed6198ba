#pragma once

#include <QCache>
#include <QFont>
#include <QTextLayout>

class QStyleOptionViewItem;

/// The texts of a grid's cells, laid out. Most of them are seen again (when a row is selected, when the list moves, in
/// other rows), and to lay a text out takes longer than to draw it.
class CellTexts {
public:
    /// A cell's text on one line of `width` pixels, cut where it has no room there. Holds until the next call.
    const QTextLayout& LaidOut(const QStyleOptionViewItem& cell, int width);

private:
    struct Place {
        QString text;
        int width;
        Qt::Alignment alignment;
        Qt::LayoutDirection direction;

        bool operator==(const Place&) const = default;
        friend size_t qHash(const Place& place, size_t seed) { return qHashMulti(seed, place.text, place.width); }
    };
    /// More than a large screen shows at once.
    static constexpr int Most = 500;

    QFont m_font;
    QCache<Place, QTextLayout> m_layouts{Most};
};
