#include "reports/reports_panel.h"

#include "controls/hourglass.h"
#include "controls/layout.h"
#include "db/connection.h"
#include "reports/graph_rows.h"

#include <QTextDocument>

namespace {

// The graph's place beside the statistics, in twips; it does not follow the width of the window.
constexpr int GraphLeft = 3870;
constexpr int GraphWidth = 7215;
constexpr int ExpandLeft = 3910;
constexpr int ExpandedMargin = 50;

constexpr int Spacing = 4;

// What the lists have room for, in characters; a longer item name shows in a tooltip.
constexpr int GraphNameLength = 16;
constexpr int StyleNameLength = 8;
constexpr int ItemNameLength = 17;

enum Graph { InvoicesThisMonthGraph, InvoicesPerMonthGraph, CompareItemSalesGraph };

} // namespace

ReportsPanel::ReportsPanel(QWidget* parent)
    : Panel("picReports", parent)
    , Label1_2(new QFrame)
    , Frame2(new StatisticsFrame)
    , picCompareProducts(new QWidget)
    , m_parts(new QHBoxLayout)
{
    SetTitle(tr("Reports"));
    TopIcon()->show();
    TitleLabel()->show();
    Label1_2->setObjectName(QStringLiteral("Label1_2"));
    Label1_2->setFrameShape(QFrame::StyledPanel);
    Frame2->setFixedWidth(TwipsToPixels(GraphLeft) - 2 * Spacing);
    m_parts->setSpacing(Spacing);
    m_parts->addWidget(Frame2);
    m_parts->addLayout(BuildGraph());
    // The parts stand on the frame, so that told distances count from its outer edge.
    auto* body = new QWidget;
    auto* cell = new QGridLayout(body);
    cell->setContentsMargins(0, 0, 0, 0);
    cell->addWidget(Label1_2, 0, 0);
    cell->addLayout(m_parts, 0, 0);
    QVBoxLayout* parts = column({row({TopIcon(), TitleLabel(), stretch()}), body});
    parts->setStretchFactor(body, 1);
    setLayout(parts);
    PlaceGraph();

    On(cmdExpand, &QPushButton::clicked, this, [this] { ToggleExpand(); });
    for (ComboBox* choice : {cboGraphType, cboGraphStyle})
        On(choice, &ComboBox::Click, this, [this] { RefreshGraph(cboGraphType->ListIndex()); });
    for (ComboBox* list : {cboReportFirstProduct, cboReportSecondProduct})
        On(list, &ComboBox::Click, this, [this, list] { ProductChosen(list); });
}

QLayout* ReportsPanel::BuildGraph()
{
    c->setAccessibleName(tr("Graph"));
    BuildCompareProducts();
    auto* graph = column({BuildChoices(), picCompareProducts, row({c, stretch(0)})});
    static_cast<QBoxLayout*>(graph->itemAt(2)->layout())->setStretchFactor(c, 1);
    graph->setStretch(2, 1);
    return graph;
}

QLayout* ReportsPanel::BuildChoices()
{
    cmdExpand->setText(tr("<< Expand"));
    for (const QString& graph : {tr("Invoices this month"), tr("Invoices per month"), tr("Compare Item Sales!")})
        cboGraphType->AddItem(graph, 0);
    for (const QString& style : {tr("3D Bar"), tr("2D Bar"), tr("3D Line"), tr("2D Line"), tr("3D Area"), tr("2D Area"),
             tr("3D Step"), tr("2D Step")})
        cboGraphStyle->AddItem(style, 0);
    cboGraphType->setMinimumContentsLength(GraphNameLength);
    cboGraphStyle->setMinimumContentsLength(StyleNameLength);
    auto* lblGraphType = new QLabel(tr("View Graph:"));
    auto* lblGraphStyle = new QLabel(tr("Graph Style:"));
    SetLabelOf(lblGraphType, cboGraphType);
    SetLabelOf(lblGraphStyle, cboGraphStyle);
    return row({gap(TwipsToPixels(ExpandLeft - GraphLeft)), cmdExpand, gap(2 * Spacing), lblGraphType, cboGraphType,
        gap(2 * Spacing), lblGraphStyle, cboGraphStyle, stretch()});
}

void ReportsPanel::BuildCompareProducts()
{
    for (ComboBox* list : {cboReportFirstProduct, cboReportSecondProduct})
        list->setMinimumContentsLength(ItemNameLength);
    auto* lblFirstProduct = new QLabel(tr("Red Product:"));
    auto* lblSecondProduct = new QLabel(tr("Green Product:"));
    SetLabelOf(lblFirstProduct, cboReportFirstProduct);
    SetLabelOf(lblSecondProduct, cboReportSecondProduct);
    picCompareProducts->setObjectName(QStringLiteral("picCompareProducts"));
    picCompareProducts->setLayout(row({gap(TwipsToPixels(ExpandLeft - GraphLeft)), lblFirstProduct,
        cboReportFirstProduct, gap(2 * Spacing), lblSecondProduct, cboReportSecondProduct, stretch()}));
    picCompareProducts->layout()->setContentsMargins(0, 0, 0, 0);
    picCompareProducts->hide();
}

void ReportsPanel::SelectFirstGraph()
{
    for (ComboBox* choice : {cboGraphStyle, cboGraphType})
        SelectIgnoring(choice, 0, [this] { RefreshGraph(cboGraphType->ListIndex()); });
}

void ReportsPanel::ShowReports()
{
    const Hourglass hourglass(tr("Computing the statistics..."));
    for (ComboBox* list : {cboReportFirstProduct, cboReportSecondProduct})
        list->Clear();
    Ignoring([this] { ListItems(); });
    const int items = cboReportFirstProduct->ListCount();
    if (items > 0)
        SelectIgnoring(cboReportFirstProduct, 0, [this] { ProductChosen(cboReportFirstProduct); });
    if (items > 0)
        SelectIgnoring(cboReportSecondProduct, items > 1 ? 1 : 0, [this] { ProductChosen(cboReportSecondProduct); });
    Frame2->Refresh();
}

void ReportsPanel::ListItems()
{
    QList<std::pair<QString, qint64>> items;
    for (Recordset item = gConnection->Execute("SELECT id, name FROM item ORDER BY name"); !item.Eof();
         item.MoveNext()) {
        const std::string_view name = item.Text(1);
        items.append({QString::fromUtf8(name.data(), qsizetype(name.size())), item.Long(0)});
    }
    cboReportFirstProduct->AddItems(items);
    cboReportSecondProduct->AddItems(items);
}

void ReportsPanel::ProductChosen(ComboBox* list)
{
    const QString name = list->Text();
    list->setToolTip(Qt::mightBeRichText(name) ? Qt::convertFromPlainText(name) : name);
    RefreshGraph(cboGraphType->ListIndex());
}

void ReportsPanel::RefreshGraph(int graphNumber)
{
    const Hourglass hourglass(tr("Computing the graph..."));
    switch (graphNumber) {
    case InvoicesThisMonthGraph:
        return Draw({tr("Invoices")}, InvoicesThisMonth());
    case InvoicesPerMonthGraph:
        return Draw({tr("Invoices")}, InvoicesPerMonth());
    case CompareItemSalesGraph:
        picCompareProducts->show();
        if (cboReportFirstProduct->ListIndex() < 0 || cboReportSecondProduct->ListIndex() < 0)
            return;
        return Draw({cboReportFirstProduct->Text(), cboReportSecondProduct->Text()},
            ItemSales(cboReportFirstProduct->SelectedData(), cboReportSecondProduct->SelectedData()));
    default:
        return;
    }
}

void ReportsPanel::Draw(const QStringList& series, const QList<GraphRow>& rows)
{
    c->SetShowLegend(false);
    c->SetChartType(ChartType(cboGraphStyle->ListIndex()));
    c->SetColumnCount(int(series.size()));
    c->SetRowCount(int(rows.size()));
    for (int row = 1; row <= rows.size(); ++row) {
        c->SetRow(row);
        c->SetRowLabel(rows.at(row - 1).label);
        for (int column = 1; column <= series.size(); ++column) {
            c->SetColumn(column);
            c->SetData(rows.at(row - 1).values.at(column - 1));
        }
    }
    for (int column = 1; column <= series.size(); ++column) {
        c->SetColumn(column);
        c->SetColumnLabel(series.at(column - 1));
    }
}

void ReportsPanel::ToggleExpand()
{
    m_expanded = !m_expanded;
    cmdExpand->setText(m_expanded ? tr("Shrink >>") : tr("<< Expand"));
    Frame2->setVisible(!m_expanded);
    PlaceGraph();
    emit Expanded();
}

void ReportsPanel::PlaceGraph()
{
    const int margin = m_expanded ? TwipsToPixels(ExpandedMargin) : Spacing;
    m_parts->setContentsMargins(margin, Spacing, margin, Spacing);
    c->setMinimumWidth(m_expanded ? 0 : TwipsToPixels(GraphWidth));
    c->setMaximumWidth(m_expanded ? QWIDGETSIZE_MAX : TwipsToPixels(GraphWidth));
    // The resize routine of the window finds everything in its place.
    m_parts->activate();
}
