#include "controls/flex_grid.h"

#include "controls/flex_grid_model.h"
#include "controls/flex_grid_paint.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>

bool FlexGrid::event(QEvent* event)
{
    const bool handled = QTableView::event(event);
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        for (int line = 0; line < frameWidth(); ++line)
            painter.drawRect(rect().adjusted(line, line, -line - 1, -line - 1));
    }
    return handled;
}

void FlexGrid::keyPressEvent(QKeyEvent* event)
{
    const auto goTo = [&](int row) {
        if (Rows() > 1)
            SelectRow(row);
        event->accept();
    };
    if (event->matches(QKeySequence::Copy)) {
        CopyRow();
        return event->accept();
    }
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Accepted first: a form's default button is not to run as well.
        event->accept();
        return DblClickAt(m_row, m_col);
    case Qt::Key_Home:
        return goTo(1);
    case Qt::Key_End:
        return goTo(Rows() - 1);
    default:
        QTableView::keyPressEvent(event);
    }
}

void FlexGrid::CopyRow() const
{
    if (m_row == 0)
        return;
    QStringList cells;
    for (int col = 0; col < Cols(); ++col)
        cells.append(
            TextMatrix(m_row, col).replace(QRegularExpression(QStringLiteral("[\t\r\n]+")), QStringLiteral(" ")));
    QGuiApplication::clipboard()->setText(cells.join(u'\t'));
}

void FlexGrid::paintEvent(QPaintEvent* event)
{
    // A list that is being filled is blank yet, and not empty: the sign of a long wait may paint it for the first time.
    if (!updatesEnabled())
        return;
    QTableView::paintEvent(event);
    QStyleOption option;
    option.palette = palette();
    const auto color = QRgb(style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this));
    PaintLines(this, event->rect(), QColor::fromRgba(color));
    PaintEmptyText(this,
        m_model->IsFiltered() && Rows() > 1 ? tr("No row has all of these words. Press Esc to show all rows.")
                                            : m_emptyText);
}

void FlexGrid::initViewItemOption(QStyleOptionViewItem* option) const
{
    QTableView::initViewItemOption(option);
    if (const qint64 plain = option->palette.cacheKey(); plain != m_plainPalette) {
        m_plainPalette = plain;
        m_stripedPalette = option->palette;
        m_stripedPalette.setColor(QPalette::AlternateBase, StripeColor(option->palette));
    }
    // The key tells the colours, not which group of them is in use.
    m_stripedPalette.setCurrentColorGroup(option->palette.currentColorGroup());
    option->palette = m_stripedPalette;
}

void FlexGrid::focusInEvent(QFocusEvent* event)
{
    // Qt makes the first row current, unseen, when a view gets the focus; here it takes a click or a key.
    m_setByCode = true;
    QTableView::focusInEvent(event);
    m_setByCode = false;
    ShowCurrent();
    update();
}

void FlexGrid::focusOutEvent(QFocusEvent* event)
{
    QTableView::focusOutEvent(event);
    update();
}

void FlexGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    emit Resized();
}

void FlexGrid::changeEvent(QEvent* event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        MeasureRows();
}

void FlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (m_setByCode)
        return;
    m_row = current.isValid() ? m_model->RowAt(current.row()) + 1 : 0;
    m_col = qMax(0, current.column());
    m_colSel = Cols() - 1;
}

QItemSelectionModel::SelectionFlags FlexGrid::selectionCommand(const QModelIndex& index, const QEvent*) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}

void FlexGrid::ClickAt(int row, int col)
{
    m_mouseRow = row;
    m_mouseCol = col;
    emit Click();
}

void FlexGrid::DblClickAt(int row, int col)
{
    m_mouseRow = row;
    m_mouseCol = col;
    emit DblClick();
}
