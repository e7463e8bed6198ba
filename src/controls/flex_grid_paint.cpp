#include "controls/flex_grid_paint.h"

#include "base/texts.h"
#include "controls/flex_grid_model.h"
#include "controls/layout.h"

#include <QHelpEvent>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QTableView>
#include <QToolTip>

#include <functional>
#include <numeric>

namespace {
constexpr int TooltipCharacters = 2000;
constexpr int EmptyTextMargin = 12;
constexpr int ArrowHeight = 4;
/// Of a tinted row: between a plain one and a selected one, so that a text is legible on it in any theme.
constexpr double TintStrength = 0.35;

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

QColor Blended(const QColor& from, const QColor& to, double share)
{
    const auto mix = [share](int a, int b) { return int(a + (b - a) * share); };
    return {mix(from.red(), to.red()), mix(from.green(), to.green()), mix(from.blue(), to.blue())};
}

/// Reads on plain and striped rows of a light and of a dark theme.
QColor MarkedTextColor(const QPalette& palette)
{
    return IsDark(palette) ? QColor(255, 183, 77) : QColor(163, 60, 0);
}

/// A warning triangle: sharp at every size, and seen on every background, the selection's included.
class WarningSign : public QIconEngine {
public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override
    {
        const double side = qMin(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.center().x() + 0.5 - side / 2, rect.center().y() + 0.5 - side / 2);
        painter->scale(side, side);
        QPainterPath triangle;
        triangle.moveTo(0.5, 0.06);
        triangle.lineTo(0.97, 0.92);
        triangle.lineTo(0.03, 0.92);
        triangle.closeSubpath();
        painter->setPen(QPen(QColor(110, 60, 0), 0.06, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->setBrush(QColor(255, 176, 32));
        painter->drawPath(triangle);
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(60, 30, 0));
        painter->drawRoundedRect(QRectF(0.44, 0.36, 0.12, 0.30), 0.05, 0.05);
        painter->drawEllipse(QRectF(0.435, 0.71, 0.13, 0.13));
        painter->restore();
    }
    QIconEngine* clone() const override { return new WarningSign; }
};

QColor TextColor(const QStyleOptionViewItem& cell)
{
    const auto group = !(cell.state & QStyle::State_Enabled) ? QPalette::Disabled
        : cell.state & QStyle::State_Active                  ? QPalette::Normal
                                                             : QPalette::Inactive;
    return cell.palette.color(group, cell.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text);
}

/// Paints a cell without a sign as the style would, which lays each text out three times: to measure it, to cut it and
/// to draw it.
void PaintText(QPainter* painter, const QStyleOptionViewItem& cell, const QStyle& style, CellTexts& texts)
{
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    const QRect room = cell.rect.adjusted(margin, 0, -margin, 0);
    const QTextLayout& text = texts.LaidOut(cell, room.width());
    const QTextLine line = text.lineAt(0);

    if (cell.backgroundBrush.style() == Qt::SolidPattern)
        painter->fillRect(cell.rect, cell.backgroundBrush);
    else
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    const bool sticksOut = line.naturalTextWidth() > room.width() || line.height() > cell.rect.height();
    if (sticksOut) {
        painter->save();
        painter->setClipRect(cell.rect);
    }
    painter->setPen(TextColor(cell));
    const QSize size(room.width(), int(line.height()));
    text.draw(painter,
        QStyle::alignedRect(cell.direction, cell.displayAlignment & Qt::AlignVertical_Mask, size, room).topLeft());
    if (sticksOut)
        painter->restore();
}
} // namespace

QColor StripeColor(const QPalette& palette)
{
    return Blended(palette.color(QPalette::Base), palette.color(QPalette::Text), IsDark(palette) ? 0.07 : 0.045);
}

void PaintLines(QTableView* view, const QRect& part, const QColor& color)
{
    const QHeaderView& rows = *view->verticalHeader();
    QList<QRect> columns;
    for (int col = 0; col < view->model()->columnCount(); ++col)
        if (!view->isColumnHidden(col))
            columns.append(
                QRect(view->columnViewportPosition(col), 0, view->columnWidth(col), rows.length() - rows.offset()));
    const QRect cells = part & std::accumulate(columns.begin(), columns.end(), QRect(), std::bit_or<>());
    if (cells.isEmpty())
        return;
    QPainter painter(view->viewport());
    for (int row = view->rowAt(cells.top()); row <= view->rowAt(cells.bottom()); ++row)
        painter.fillRect(
            cells.left(), view->rowViewportPosition(row) + view->rowHeight(row) - 1, cells.width(), 1, color);
    for (const QRect& column : columns)
        painter.fillRect(view->isRightToLeft() ? column.left() : column.right(), cells.top(), 1, cells.height(), color);
}

void PaintEmptyText(QAbstractItemView* view, const QString& text)
{
    if (text.isEmpty() || view->model()->rowCount() > 0)
        return;
    QPainter painter(view->viewport());
    const QPalette& palette = view->palette();
    painter.setPen(Blended(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.65));
    const int margin = EmptyTextMargin;
    painter.drawText(view->viewport()->rect().adjusted(margin, margin, -margin, -margin),
        int(Qt::AlignHCenter) | int(Qt::AlignTop) | int(Qt::TextWordWrap), text);
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle& style = *cell.widget->style();
    if (cell.features & QStyleOptionViewItem::HasDecoration)
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    else
        PaintText(painter, cell, style, m_texts);
}

bool CellDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const bool isCut = index.isValid() && sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !isCut)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data(Qt::DisplayRole).toString();
    QString tip = Shortened(text, TooltipCharacters).toString();
    if (const QString mark = index.data(Qt::ToolTipRole).toString(); !mark.isEmpty())
        tip.append(u'\n').append(mark);
    QToolTip::showText(event->globalPos(), PlainToolTip(tip), view, option.rect);
    return true;
}

void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    const CellLook look = static_cast<const FlexGridModel&>(*index.model()).Look(index);
    option->index = index;
    option->styleObject = nullptr;
    option->features |= QStyleOptionViewItem::HasDisplay;
    option->text = FlexGridModel::OnOneLine(look.text);
    option->displayAlignment = look.alignment;
    option->state &= ~QStyle::State_HasFocus;
    if (look.isTinted) {
        option->state &= ~QStyle::State_Selected;
        option->backgroundBrush =
            Blended(option->palette.color(QPalette::Base), option->palette.color(QPalette::Highlight), TintStrength);
    }
    if (!look.isMarked)
        return;
    static const QIcon sign(new WarningSign);
    option->icon = sign;
    option->features |= QStyleOptionViewItem::HasDecoration;
    const int side = option->fontMetrics.ascent();
    option->decorationSize = QSize(side, side);
    option->palette.setColor(QPalette::Text, MarkedTextColor(option->palette));
}

TitleHeader::TitleHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
}

void TitleHeader::ShowSorted(int col)
{
    if (col == m_sorted)
        return;
    m_sorted = col;
    viewport()->update();
}

QSize TitleHeader::sizeHint() const
{
    if (!m_sizeHint.isValid() && count() > 0)
        m_sizeHint = QHeaderView::sizeHint() + QSize(0, ArrowHeight);
    return m_sizeHint.isValid() ? m_sizeHint : QHeaderView::sizeHint();
}

bool TitleHeader::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int col = logicalIndexAt(help->pos());
        const bool isCut = col >= 0 && Elided(col) != Title(col);
        QToolTip::showText(help->globalPos(), isCut ? PlainToolTip(Title(col)) : QString(), viewport());
        return true;
    }
    return QHeaderView::viewportEvent(event);
}

void TitleHeader::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        m_sizeHint = QSize();
    QHeaderView::changeEvent(event);
}

void TitleHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int col) const
{
    QHeaderView::initStyleOptionForIndex(option, col);
    option->text = Elided(col);
    // The header is one line high, with the arrow above it.
    option->textAlignment = (option->textAlignment & Qt::AlignHorizontal_Mask) | Qt::AlignBottom;
}

void TitleHeader::paintSection(QPainter* painter, const QRect& rect, int col) const
{
    // The style leaves a clip behind that lets nothing through.
    painter->save();
    QHeaderView::paintSection(painter, rect, col);
    painter->restore();
    if (col != m_sorted)
        return;
    // Lists sort upwards only: by itself Qt would turn its arrow with every click.
    const QPointF tip(rect.center().x() + 0.5, rect.top() + ArrowHeight + 1);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette().color(QPalette::ButtonText));
    painter->drawPolygon(
        QPolygonF({tip, tip - QPointF(ArrowHeight, ArrowHeight), tip + QPointF(ArrowHeight, -ArrowHeight)}));
    painter->restore();
}

QString TitleHeader::Title(int col) const
{
    return model()->headerData(col, Qt::Horizontal).toString();
}

QString TitleHeader::Elided(int col) const
{
    const int margins = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    return fontMetrics().elidedText(Title(col), Qt::ElideRight, sectionSize(col) - margins);
}
