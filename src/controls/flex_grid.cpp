#include "controls/flex_grid.h"

#include "base/runtime_error.h"
#include "controls/flex_grid_model.h"
#include "controls/flex_grid_paint.h"
#include "controls/kept_pictures.h"
#include "controls/layout.h"

#include <QGuiApplication>
#include <QScrollArea>
#include <QScrollBar>

namespace {
constexpr int DefaultTwips = 960;
constexpr int RowPadding = 6;
// The grip of a title does not let itself be dragged to the very last pixel.
constexpr int ShutPixels = 4;
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
    setAlternatingRowColors(true);
    // The lines have their room, and are drawn by PaintLines.
    setGridStyle(Qt::NoPen);
    verticalScrollBar()->setStyle(StyleWithKeptPictures());
    // With a background of its own it is painted without all that lies below it.
    verticalScrollBar()->setAutoFillBackground(true);
    SetUpHeader();
    MeasureRows();

    m_tintEnd.setSingleShot(true);
    QObject::connect(&m_tintEnd, &QTimer::timeout, this, [this] { SetTinted(0); });
    QObject::connect(m_model, &FlexGridModel::modelReset, this, [this] { m_model->SetTinted(-1); });
    const auto isLeft = [] { return !(QGuiApplication::mouseButtons() & (Qt::RightButton | Qt::MiddleButton)); };
    QObject::connect(this, &QTableView::clicked, this,
        [this](const QModelIndex& cell) { ClickAt(m_model->RowAt(cell.row()) + 1, cell.column()); });
    QObject::connect(this, &QTableView::doubleClicked, this, [this, isLeft](const QModelIndex& cell) {
        if (isLeft())
            DblClickAt(m_model->RowAt(cell.row()) + 1, cell.column());
    });
    QObject::connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int col) { ClickAt(0, col); });
    QObject::connect(
        horizontalHeader(), &QHeaderView::sectionDoubleClicked, this, [this](int col) { DblClickAt(0, col); });
}

void FlexGrid::SetUpHeader()
{
    verticalHeader()->hide();
    auto* header = new TitleHeader(this);
    m_header = header;
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
    return m_model->Count() + 1;
}

void FlexGrid::SetRows(int rows)
{
    if (rows < 1)
        throw RuntimeError(30009, tr("Invalid Row value"));
    // Rows that code adds one by one are there to be seen.
    if (rows > Rows())
        SetFilter({});
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
        return m_model->SetTitle(col, text);
    SetFilter({});
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

int FlexGrid::RowOf(qint64 rowData) const
{
    int row = Rows() - 1;
    while (row > 0 && m_model->RowData(row - 1) != rowData)
        --row;
    return row;
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

QSize FlexGrid::sizeHint() const
{
    constexpr int FewRows = 6;
    const int height = m_header->sizeHint().height() + FewRows * verticalHeader()->defaultSectionSize();
    return {QTableView::sizeHint().width(), height + 2 * frameWidth()};
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
    const int place = rowAt(0);
    return place < 0 ? 1 : m_model->RowAt(place) + 1;
}

void FlexGrid::SetTopRow(int row)
{
    CheckRow(row);
    executeDelayedItemsLayout();
    if (row > 0)
        scrollTo(m_model->index(m_model->NearestPlace(row - 1), 0), PositionAtTop);
}

bool FlexGrid::RowIsVisible(int row) const
{
    CheckRow(row);
    if (row == 0)
        return true;
    const int place = m_model->NearestPlace(row - 1);
    if (place < 0 || m_model->RowAt(place) != row - 1)
        return false;
    const int top = rowViewportPosition(place);
    return top >= 0 && top + rowHeight(place) <= viewport()->height();
}

void FlexGrid::ShowTinted(int row)
{
    constexpr int TintMs = 1000;
    CheckRow(row);
    Reveal(row);
    SetTinted(row);
    m_tintEnd.start(TintMs);
    const QModelIndex cell = m_model->index(m_model->NearestPlace(row - 1), m_col);
    scrollTo(cell);
    // In a small window the whole screen scrolls as well.
    for (QWidget* above = parentWidget(); above; above = above->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(above)) {
            const QRect place = visualRect(cell);
            const int bottom = viewport()->mapTo(area->widget(), place.bottomLeft()).y();
            area->ensureVisible(area->horizontalScrollBar()->value(), bottom, 0, place.height());
        }
}

void FlexGrid::SetTinted(int row)
{
    // What was found last shows first; the row before it loses its tint a moment later.
    constexpr int MomentMs = 40;
    QTimer::singleShot(MomentMs, this, [this, before = TintedRow()] { UpdateRow(before); });
    m_model->SetTinted(row - 1);
    UpdateRow(row);
}

void FlexGrid::UpdateRow(int row)
{
    // Row 0 has no place, nor has any row before there are some.
    if (const int place = row > 0 && row < Rows() ? m_model->NearestPlace(row - 1) : -1; place >= 0)
        viewport()->update(0, rowViewportPosition(place), viewport()->width(), rowHeight(place));
}

int FlexGrid::TintedRow() const
{
    return m_model->Tinted() + 1;
}

void FlexGrid::SetMark(int col, const QString& meaning)
{
    CheckCol(col);
    m_model->SetMark(col, meaning);
}

void FlexGrid::ShowSorted(int col)
{
    m_header->ShowSorted(col);
}

void FlexGrid::SetEmptyText(const QString& text)
{
    m_emptyText = text;
    viewport()->update();
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
    const int place = m_row == 0 ? -1 : m_model->NearestPlace(m_row - 1);
    // When its filter shows rows again, a list goes on from where it was.
    m_hiddenRow = place < 0 ? m_row : 0;
    // What the filter hides is not current, or the next act would be on what nobody sees.
    m_row = place < 0 ? 0 : m_model->RowAt(place) + 1;
    m_setByCode = true;
    if (place < 0) {
        selectionModel()->clear();
    } else {
        const QModelIndex cell = m_model->index(place, m_col);
        selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    m_setByCode = false;
}

void FlexGrid::ReplaceRow(int row, const FlexGridRows& cells)
{
    if (cells.Count() != 1)
        return;
    if (row == Rows())
        return AppendRow(cells);
    m_model->ReplaceRow(row - 1, cells);
    UpdateRow(row);
}

void FlexGrid::AppendRow(const FlexGridRows& cells)
{
    const bool isFirst = Rows() == 1;
    const QRect before = viewport()->geometry();
    executeDelayedItemsLayout();
    m_model->AppendRow(cells);
    // By itself Qt would paint all rows anew for one that comes in behind them.
    viewport()->setAttribute(Qt::WA_UpdatesDisabled, true);
    executeDelayedItemsLayout();
    viewport()->setAttribute(Qt::WA_UpdatesDisabled, false);
    if (isFirst || viewport()->geometry() != before)
        viewport()->update();
    else
        UpdateRow(Rows() - 1);
}

GridFill::GridFill(FlexGrid* grid)
    : m_grid(grid)
    , m_rows(std::make_unique<FlexGridRows>(grid->Cols()))
{
}

GridFill::GridFill(FlexGrid* grid, int row)
    : GridFill(grid)
{
    m_row = row;
}

GridFill::~GridFill()
{
    if (m_row > 0) {
        m_grid->ReplaceRow(m_row, *m_rows);
        return;
    }
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

void GridFill::MarkRow()
{
    m_rows->Mark();
}

int GridFill::EndRow(qint64 rowData)
{
    m_rows->EndRow(rowData);
    return m_rows->Count();
}
