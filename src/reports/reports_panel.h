#pragma once

#include "chart/chart.h"
#include "controls/combo_box.h"
#include "controls/form.h"
#include "reports/statistics_frame.h"

#include <QPushButton>

struct GraphRow;

/// The Reports view: the statistics and, beside them, a graph.
class ReportsPanel : public Panel {
    Q_OBJECT
public:
    explicit ReportsPanel(QWidget* parent = nullptr);

    /// Lists the items anew and takes every figure; what fails keeps what it showed. Draws the graph through the
    /// selection of the first items.
    void ShowReports();
    /// Draws the graph of that number: 0 the invoices of this month by day, 1 those of twelve months, 2 the sales of
    /// the two chosen items, which also brings up their lists. Any other draws nothing. Throws RuntimeError when a
    /// statement fails; the graph is what it was then.
    void RefreshGraph(int graphNumber);
    /// What the window starts with: the first style, the first graph.
    void SelectFirstGraph();

    CONTROL(ComboBox, cboGraphType);
    CONTROL(ComboBox, cboGraphStyle);
    CONTROL(ComboBox, cboReportFirstProduct);
    CONTROL(ComboBox, cboReportSecondProduct);
    CONTROL(QPushButton, cmdExpand);
    CONTROL(Chart, c);

    QFrame* Label1_2; ///< the frame around all of it
    StatisticsFrame* Frame2;
    QWidget* picCompareProducts; ///< out of sight until items are compared for the first time

signals:
    /// The graph was expanded or shrunk: the window's resize routine is to run.
    void Expanded();

private:
    QLayout* BuildGraph();
    QLayout* BuildChoices();
    void BuildCompareProducts();
    void ListItems();
    void ProductChosen(ComboBox* list);
    void Draw(const QStringList& series, const QList<GraphRow>& rows);
    void ToggleExpand();
    void PlaceGraph();

    QHBoxLayout* m_parts; ///< the statistics and the graph
    bool m_expanded = false;
};
