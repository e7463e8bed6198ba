#pragma once

#include "platform/combo_box.h"
#include "platform/form.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

/// The Reports view: the statistics frame and, beside it, the graph.
class ReportsPanel : public Panel {
    Q_OBJECT
public:
    explicit ReportsPanel(QWidget* parent = nullptr);

    /// Fills `lblLabels_52` to `lblLabels_58`, the day rows of the week.
    void ShowWeekdays(const QStringList& names);

    CONTROL(ComboBox, cboGraphType);
    CONTROL(ComboBox, cboGraphStyle);
    CONTROL(QPushButton, cmdExpand);

    QLabel* Label1_2; ///< the frame around all of it
    QFrame* Frame2; ///< the statistics
    QFrame* c; ///< the graph
    QLabel* lblTotalResToday;
    QLabel* lblMostResDate;
    QLabel* lblLeastResDate;
    QLabel* lblMostPopMonth;
    QLabel* lblLeastPopMonth;
    QLabel* lblRecCust;
    QLabel* lblResThisMonth;
    QLabel* lblResThisMonthYTD;
    QLabel* lblTotRes;
    QList<QLabel*> lblGuestDOW; ///< Monday to Sunday

signals:
    /// The graph was expanded or shrunk: the window's resize routine is to run.
    void Expanded();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* BuildStatistics();
    void ToggleExpand();
    void PlaceParts();

    QWidget* m_body;
    QWidget* m_choices;
    QList<QLabel*> m_weekdays;
    bool m_expanded = false;
};
