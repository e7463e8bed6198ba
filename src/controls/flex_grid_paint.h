#pragma once

#include "controls/cell_texts.h"

#include <QHeaderView>
#include <QPalette>
#include <QStyledItemDelegate>

class QTableView;

/// How the grid's cells and titles look.

/// Every second row's background: the palettes of many themes hold one that cannot be told from the other rows'.
QColor StripeColor(const QPalette& palette);

/// Draws the lines below the rows and between the columns, as far as they lie in a part of the viewport. Qt draws them
/// point by point, which takes as long as half of the texts.
void PaintLines(QTableView* view, const QRect& part, const QColor& color);

/// Says in an empty view why it is empty and what to do about it.
void PaintEmptyText(QAbstractItemView* view, const QString& text);

/// Paints a cell on one line, without a frame around the current one: it is rows that the user picks. A marked cell
/// gets a sign and a colour. For a view on a FlexGridModel.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// A cut cell tells its text, a marked one what the mark means.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    mutable CellTexts m_texts;
};

/// Shows the start of a title that is wider than its column, where Qt cuts a centred title off at both ends, and all of
/// it as tooltip. The arrow over the title by which the list is sorted takes no width from it.
class TitleHeader : public QHeaderView {
public:
    explicit TitleHeader(QWidget* parent);

    /// The column that bears the arrow; -1 for none.
    void ShowSorted(int col);
    /// Asked with every refill, and measuring the titles each time would be a third of a short one. Titles have one
    /// line, so that only font and style decide.
    QSize sizeHint() const override;

protected:
    bool viewportEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void initStyleOptionForIndex(QStyleOptionHeader* option, int col) const override;
    void paintSection(QPainter* painter, const QRect& rect, int col) const override;

private:
    QString Title(int col) const;
    /// The title as far as there is room for it.
    QString Elided(int col) const;

    mutable QSize m_sizeHint;
    int m_sorted = -1;
};
