#pragma once

#include <QGroupBox>
#include <QLabel>

class QGridLayout;

/// The statistics: the figures about all invoices and, below them, the invoices of each day of this week.
class StatisticsFrame : public QGroupBox {
    Q_OBJECT
public:
    explicit StatisticsFrame(QWidget* parent = nullptr);

    /// Names the day rows `lblLabels_52` to `lblLabels_58`, of which the first is the day `firstWeekday` (Monday is 1),
    /// and puts each day's count beside its name.
    void ShowWeekdays(const QStringList& names, int firstWeekday);
    /// Takes every figure anew. One that cannot be had keeps its text.
    void Refresh();

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

private:
    QLayout* BuildFigures();
    QWidget* BuildWeek();
    void AddLeftOvers();
    void RefreshWeek();

    QGridLayout* m_days;
    QList<QLabel*> m_weekdays;
};
