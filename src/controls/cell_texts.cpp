#include "controls/cell_texts.h"

#include <QStyle>
#include <QStyleOptionViewItem>

#include <memory>

namespace {

/// Lays a text out on one line; whether it has room there.
bool LayOut(QTextLayout& text, int width)
{
    text.beginLayout();
    QTextLine line = text.createLine();
    line.setLineWidth(width);
    text.endLayout();
    return line.naturalTextWidth() <= width;
}

std::unique_ptr<QTextLayout> NewLayout(const QStyleOptionViewItem& cell, int width)
{
    auto layout = std::make_unique<QTextLayout>(cell.text, cell.font);
    QTextOption option(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
    option.setTextDirection(cell.direction);
    option.setWrapMode(QTextOption::ManualWrap);
    layout->setTextOption(option);
    // Without it the glyphs are found once to measure and once more to draw.
    layout->setCacheEnabled(true);
    if (!LayOut(*layout, width)) {
        layout->setText(cell.fontMetrics.elidedText(cell.text, cell.textElideMode, width));
        LayOut(*layout, width);
    }
    return layout;
}

} // namespace

const QTextLayout& CellTexts::LaidOut(const QStyleOptionViewItem& cell, int width)
{
    if (cell.font != m_font) {
        m_layouts.clear();
        m_font = cell.font;
    }
    const Place place{cell.text, width, cell.displayAlignment, cell.direction};
    QTextLayout* layout = m_layouts.object(place);
    if (!layout) {
        layout = NewLayout(cell, width).release();
        m_layouts.insert(place, layout);
    }
    return *layout;
}
