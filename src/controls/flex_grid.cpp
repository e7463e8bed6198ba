#include "controls/flex_grid.h"

#include "base/runtime_error.h"
#include "controls/flex_grid_model.h"
#include "controls/layout.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

namespace {
constexpr int DefaultTwips = 960;
constexpr int RowPadding = 6;
// The grip of a title does not let itself be dragged to the very last pixel.
constexpr int ShutPixels = 4;
// More than any screen shows; a cell that holds a whole file is not laid out to its end.
constexpr int ShownCharacters = 2000;

/// Between a plain row and a selected one, so that a text is legible on it in any theme.
QColor Tint(const QPalette& palette)
{
    constexpr float Strength = 0.35F;
    const QColor plain = palette.color(QPalette::Base);
    const QColor strong = palette.color(QPalette::Highlight);
    const auto mix = [](float from, float to) { return from + (to - from) * Strength; };
    return QColor::fromRgbF(
        mix(plain.redF(), strong.redF()), mix(plain.greenF(), strong.greenF()), mix(plain.blueF(), strong.blueF()));
}

/// Paints a cell on one line, without a frame around the current one: it is rows that the user picks.
class CellDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override
    {
        QString text = value.toString().left(ShownCharacters);
        text.replace(QLatin1String("\r\n"), QLatin1String(" "));
        return text.replace(u'\n', u' ');
    }

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override
    {
        const QString text = index.data(Qt::DisplayRole).toString();
        const bool elided = sizeHint(option, index).width() > option.rect.width();
        if (event->type() != QEvent::ToolTip || !index.isValid() || !elided)
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), text.left(ShownCharacters).toHtmlEscaped(), view, option.rect);
        return true;
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~QStyle::State_HasFocus;
        if (index.row() + 1 == static_cast<const FlexGrid*>(option->widget)->TintedRow()) {
            option->state &= ~QStyle::State_Selected;
            option->backgroundBrush = Tint(option->palette);
        }
    }
};

/// Shows the start of a title that is wider than its column. Qt cuts a centred title off at both ends.
class TitleHeader : public QHeaderView {
public:
    explicit TitleHeader(QWidget* parent)
        : QHeaderView(Qt::Horizontal, parent)
    {
    }

    /// Asked with every refill, and measuring the titles each time would be a third of a short one. Titles have one
    /// line, so that only font and style decide.
    QSize sizeHint() const override
    {
        if (!m_sizeHint.isValid() && count() > 0)
            m_sizeHint = QHeaderView::sizeHint();
        return m_sizeHint.isValid() ? m_sizeHint : QHeaderView::sizeHint();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
            m_sizeHint = QSize();
        QHeaderView::changeEvent(event);
    }

    void initStyleOptionForIndex(QStyleOptionHeader* option, int col) const override
    {
        QHeaderView::initStyleOptionForIndex(option, col);
        const int room = sectionSize(col) - 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
        option->text = fontMetrics().elidedText(option->text, Qt::ElideRight, room);
    }

private:
    mutable QSize m_sizeHint;
};
} // namespace

FlexGrid::FlexGrid(QWidget* parent)
    : QTableView(parent)
    , m_model(new FlexGridModel(this))
    , m_twips(size_t(m_model->columnCount()), DefaultTwips)
{
    setModel(m_model);
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(false);
    SetUpHeader();
    MeasureRows();

    m_tintEnd.setSingleShot(true);
    const auto endTint = [this] {
        m_tinted = 0;
        viewport()->update();
    };
    QObject::connect(&m_tintEnd, &QTimer::timeout, this, endTint);
    QObject::connect(m_model, &FlexGridModel::modelReset, this, endTint);
    const auto isLeft = [] { return !(QGuiApplication::mouseButtons() & (Qt::RightButton | Qt::MiddleButton)); };
    QObject::connect(
        this, &QTableView::clicked, this, [this](const QModelIndex& cell) { ClickAt(cell.row() + 1, cell.column()); });
    QObject::connect(this, &QTableView::doubleClicked, this, [this, isLeft](const QModelIndex& cell) {
        if (isLeft())
            DblClickAt(cell.row() + 1, cell.column());
    });
    QObject::connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int col) { ClickAt(0, col); });
    QObject::connect(
        horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, [this](int col) { DblClickAt(0, col); });
}

void FlexGrid::SetUpHeader()
{
    verticalHeader()->hide();
    auto* header = new TitleHeader(this);
    setHorizontalHeader(header);
    // Qt's own answers to a press on a title select the column.
    QObject::disconnect(header, &QHeaderView::sectionPressed, this, nullptr);
    QObject::disconnect(header, &QHeaderView::sectionEntered, this, nullptr);
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setSortIndicatorShown(false);
    header->setStretchLastSection(false);
    header->setMinimumSectionSize(0);
    header->setDefaultSectionSize(TwipsToPixels(DefaultTwips));
}

void FlexGrid::MeasureRows()
{
    QHeaderView* header = verticalHeader();
    const int height = fontMetrics().height() + RowPadding;
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setMinimumSectionSize(height);
    header->setDefaultSectionSize(height);
}

int FlexGrid::Rows() const
{
    return m_model->rowCount() + 1;
}

void FlexGrid::SetRows(int rows)
{
    if (rows < 1)
        throw RuntimeError(30009, tr("Invalid Row value"));
    m_setByCode = true;
    m_model->SetRowCount(rows - 1);
    m_setByCode = false;
    if (m_row >= rows)
        SetRow(rows - 1);
    else
        ShowCurrent();
}

int FlexGrid::Cols() const
{
    return m_model->columnCount();
}

void FlexGrid::SetCols(int cols)
{
    if (cols < 1)
        throw RuntimeError(30010, tr("Invalid Col value"));
    m_setByCode = true;
    m_model->SetColumnCount(cols);
    m_setByCode = false;
    m_twips.resize(size_t(cols), DefaultTwips);
    m_col = qMin(m_col, cols - 1);
    m_colSel = qMin(m_colSel, cols - 1);
    ShowCurrent();
}

int FlexGrid::Row() const
{
    return m_row;
}

void FlexGrid::SetRow(int row)
{
    CheckRow(row);
    m_row = row;
    m_colSel = m_col;
    ShowCurrent();
}

int FlexGrid::Col() const
{
    return m_col;
}

void FlexGrid::SetCol(int col)
{
    CheckCol(col);
    m_col = col;
    m_colSel = col;
    ShowCurrent();
}

int FlexGrid::ColSel() const
{
    return m_colSel;
}

void FlexGrid::SetColSel(int col)
{
    CheckCol(col);
    m_colSel = col;
}

void FlexGrid::SelectRow(int row)
{
    CheckRow(row);
    m_row = row;
    m_col = 0;
    m_colSel = Cols() - 1;
    ShowCurrent();
}

QString FlexGrid::TextMatrix(int row, int col) const
{
    CheckRow(row);
    CheckCol(col);
    return row == 0 ? m_model->Title(col) : m_model->Text(row - 1, col);
}

void FlexGrid::SetTextMatrix(int row, int col, const QString& text)
{
    CheckRow(row);
    CheckCol(col);
    if (row == 0)
        m_model->SetTitle(col, text);
    else
        m_model->SetText(row - 1, col, text);
}

qint64 FlexGrid::RowData(int row) const
{
    if (row < 0 || row >= Rows())
        throw InvalidPropertyArrayIndex();
    return row == 0 ? 0 : m_model->RowData(row - 1);
}

void FlexGrid::SetRowData(int row, qint64 rowData)
{
    if (row < 1 || row >= Rows())
        throw InvalidPropertyArrayIndex();
    m_model->SetRowData(row - 1, rowData);
}

int FlexGrid::ColWidth(int col) const
{
    CheckCol(col);
    if (isColumnHidden(col))
        return 0;
    // As it was set, finer than pixels are, unless the user has dragged it since.
    const int pixels = columnWidth(col);
    const int twips = m_twips[size_t(col)];
    if (pixels < ShutPixels && twips >= PixelsToTwips(ShutPixels))
        return 0;
    return TwipsToPixels(twips) == pixels ? twips : PixelsToTwips(pixels);
}

void FlexGrid::SetColWidth(int col, int twips)
{
    CheckCol(col);
    m_twips[size_t(col)] = twips < 0 ? DefaultTwips : twips;
    setColumnHidden(col, twips == 0);
    if (twips != 0)
        setColumnWidth(col, TwipsToPixels(m_twips[size_t(col)]));
}

int FlexGrid::WidthInTwips() const
{
    return PixelsToTwips(width());
}

void FlexGrid::SetTitle(int col, const QString& title, CellAlign alignment)
{
    CheckCol(col);
    m_model->SetTitle(col, title);
    m_model->SetTitleAlignment(col, alignment);
}

void FlexGrid::SetColAlignment(int col, CellAlign alignment)
{
    CheckCol(col);
    m_model->SetAlignment(col, alignment);
}

void FlexGrid::SetRedraw(bool on)
{
    setUpdatesEnabled(on);
    // Scrolling to the current row needs the place of every row before it, which is dear while rows come one by one.
    setAutoScroll(on);
    if (!on)
        return;
    executeDelayedItemsLayout();
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

int FlexGrid::TopRow() const
{
    return qMax(1, rowAt(0) + 1);
}

void FlexGrid::SetTopRow(int row)
{
    CheckRow(row);
    executeDelayedItemsLayout();
    if (row > 0)
        scrollTo(m_model->index(row - 1, 0), PositionAtTop);
}

bool FlexGrid::RowIsVisible(int row) const
{
    CheckRow(row);
    if (row == 0)
        return true;
    const int top = rowViewportPosition(row - 1);
    return top >= 0 && top + rowHeight(row - 1) <= viewport()->height();
}

void FlexGrid::ShowTinted(int row)
{
    constexpr int TintMs = 1000;
    CheckRow(row);
    m_tinted = row;
    m_tintEnd.start(TintMs);
    scrollTo(m_model->index(row - 1, m_col));
    viewport()->update();
}

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
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Accepted first: a form's default button is not to run as well.
        event->accept();
        if (!event->isAutoRepeat())
            DblClickAt(m_row, m_col);
        return;
    case Qt::Key_Home:
        return goTo(1);
    case Qt::Key_End:
        return goTo(Rows() - 1);
    default:
        QTableView::keyPressEvent(event);
    }
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
    m_row = current.row() + 1;
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

void FlexGrid::CheckRow(int row) const
{
    if (row < 0 || row >= Rows())
        throw RuntimeError(30009, tr("Invalid Row value"));
}

void FlexGrid::CheckCol(int col) const
{
    if (col < 0 || col >= Cols())
        throw RuntimeError(30010, tr("Invalid Col value"));
}

void FlexGrid::ShowCurrent()
{
    // Rows that have just come in can be scrolled to when they are laid out only.
    if (updatesEnabled() && isVisible())
        executeDelayedItemsLayout();
    m_setByCode = true;
    if (m_row == 0) {
        selectionModel()->clear();
    } else {
        const QModelIndex cell = m_model->index(m_row - 1, m_col);
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    m_setByCode = false;
}

GridFill::GridFill(FlexGrid* grid)
    : m_grid(grid)
    , m_rows(std::make_unique<FlexGridRows>(grid->Cols()))
{
}

GridFill::~GridFill()
{
    // The selection falls to the title row with the old rows, as when they are cut off one by one.
    m_grid->SetRow(0);
    if (m_rows->Cols() > m_grid->Cols())
        m_grid->SetCols(m_rows->Cols());
    m_grid->Model()->Replace(std::move(*m_rows));
}

void GridFill::Widen(int cols)
{
    if (cols > m_rows->Cols())
        m_rows->SetCols(cols);
}

void GridFill::Add(std::string_view utf8)
{
    m_rows->Add(utf8);
}

void GridFill::Add(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    m_rows->Add(std::string_view(utf8.constData(), size_t(utf8.size())));
}

int GridFill::EndRow(qint64 rowData)
{
    m_rows->EndRow(rowData);
    return m_rows->Count();
}
