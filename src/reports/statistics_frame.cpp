#include "reports/statistics_frame.h"

#include "base/clock.h"
#include "base/guard.h"
#include "controls/layout.h"
#include "reports/statistics.h"

#include <QScrollArea>
#include <QScrollBar>

#include <functional>

namespace {

constexpr int FirstWeekdayLabel = 52;
constexpr int DaysAWeek = 7;
constexpr int BlockGap = 6;
constexpr int Margin = 4;

/// A figure, with what it shows until it is first taken.
QLabel* Figure(const QString& name, const QString& placeholder)
{
    auto* label = new QLabel(placeholder);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QGridLayout* Compact(QGridLayout* lines)
{
    constexpr int LineSpacing = 3;
    constexpr int CaptionSpacing = 5;
    lines->setVerticalSpacing(LineSpacing);
    lines->setHorizontalSpacing(CaptionSpacing);
    return lines;
}

void Show(QLabel* label, const std::function<QString()>& figure)
{
    Ignoring([&] { label->setText(figure()); });
}

} // namespace

StatisticsFrame::StatisticsFrame(QWidget* parent)
    : QGroupBox(tr("Statistics"), parent)
{
    setObjectName(QStringLiteral("Frame2"));
    auto* content = new QWidget;
    content->setLayout(column({BuildFigures(), gap(BlockGap), BuildWeek(), stretch()}));
    content->layout()->setContentsMargins(0, 0, 0, 0);
    QScrollArea* area = scrolling(content);
    area->setAccessibleName(title());
    // The keyboard scrolls it, where there is something to scroll.
    QObject::connect(area->verticalScrollBar(), &QScrollBar::rangeChanged, area,
        [area](int, int last) { area->setFocusPolicy(last > 0 ? Qt::StrongFocus : Qt::NoFocus); });
    setLayout(column({area}));
    // The told width leaves a date just enough room for one line.
    layout()->setContentsMargins(Margin, Margin, 1, Margin);
    AddLeftOvers();
}

QLayout* StatisticsFrame::BuildFigures()
{
    const QString date = QStringLiteral("1-Sep-2002");
    const QString count = QStringLiteral("123");
    lblTotalResToday = Figure(QStringLiteral("lblTotalResToday"), QStringLiteral("0"));
    lblMostResDate = Figure(QStringLiteral("lblMostResDate"), date);
    lblLeastResDate = Figure(QStringLiteral("lblLeastResDate"), date);
    lblMostPopMonth = Figure(QStringLiteral("lblMostPopMonth"), QStringLiteral("Sep"));
    lblLeastPopMonth = Figure(QStringLiteral("lblLeastPopMonth"), QStringLiteral("Oct"));
    lblRecCust = Figure(QStringLiteral("lblRecCust"), QStringLiteral("Joe Bloggs"));
    for (QLabel* longFigure : {lblMostResDate, lblLeastResDate, lblRecCust})
        longFigure->setWordWrap(true);
    lblResThisMonth = Figure(QStringLiteral("lblResThisMonth"), count);
    lblResThisMonthYTD = Figure(QStringLiteral("lblResThisMonthYTD"), count);
    lblTotRes = Figure(QStringLiteral("lblTotRes"), QStringLiteral("0"));
    QGridLayout* figures = fields({
        {tr("Total invoices today:"), lblTotalResToday},
        {tr("Most invoices on:"), lblMostResDate},
        {tr("Least invoices on:"), lblLeastResDate},
        {tr("Most popular month:"), lblMostPopMonth},
        {tr("Least popular month:"), lblLeastPopMonth},
        {tr("Most repeating customer:"), lblRecCust},
    });
    // A name takes the whole width, below its caption.
    figures->removeWidget(lblRecCust);
    figures->addWidget(lblRecCust, figures->rowCount(), 0, 1, 2);
    lblRecCust->setIndent(2 * BlockGap);
    for (const FieldLine& line :
        {FieldLine(tr("Invoices this month:"), lblResThisMonth),
            FieldLine(tr("Invoices this month YTD:"), lblResThisMonthYTD), FieldLine(tr("Total invoices:"), lblTotRes)})
        AddFieldLine(figures, line);
    return Compact(figures);
}

QWidget* StatisticsFrame::BuildWeek()
{
    m_days = fields({});
    for (const QString& day : {tr("Monday:"), tr("Tuesday:"), tr("Wednesday:"), tr("Thursday:"), tr("Friday:"),
             tr("Saturday:"), tr("Sunday:")}) {
        const auto number = int(lblGuestDOW.size());
        lblGuestDOW.append(Figure(QStringLiteral("lblGuestDOW_%1").arg(number), QStringLiteral("0")));
        const FieldLine line(day, lblGuestDOW.last());
        line.label->setObjectName(QStringLiteral("lblLabels_%1").arg(FirstWeekdayLabel + number));
        m_weekdays.append(line.label);
        AddFieldLine(m_days, line);
    }
    m_days->setColumnStretch(1, 1);
    auto* title = new QLabel(tr("Invoices this week"));
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);

    auto* picRepThisWeek = new QWidget;
    picRepThisWeek->setObjectName(QStringLiteral("picRepThisWeek"));
    picRepThisWeek->setLayout(column({title, Compact(m_days)}));
    picRepThisWeek->layout()->setContentsMargins(0, 0, 0, 0);
    return picRepThisWeek;
}

/// Two figures of earlier days that nothing writes any more. They stand here out of sight.
void StatisticsFrame::AddLeftOvers()
{
    const std::pair<const char*, QString> leftOvers[]{
        {"lblMostCustsDate", tr("Most invoices on:")}, {"lblLeastCustsDate", tr("Least invoices on:")}};
    for (const auto& [name, caption] : leftOvers) {
        QLabel* figure = Figure(QLatin1String(name), QStringLiteral("1-Sep-2002"));
        auto* label = new QLabel(caption, this);
        label->setBuddy(figure);
        label->hide();
        figure->setParent(this);
        figure->hide();
    }
}

void StatisticsFrame::ShowWeekdays(const QStringList& names, int firstWeekday)
{
    for (int line = 0; line < DaysAWeek; ++line) {
        QLabel* name = m_weekdays.at(line);
        QLabel* count = lblGuestDOW.at((firstWeekday - 1 + line) % DaysAWeek);
        name->setText(names.at(line));
        name->setBuddy(count);
        m_days->addWidget(count, m_days->rowCount() - DaysAWeek + line, 1);
    }
}

void StatisticsFrame::Refresh()
{
    Show(lblTotalResToday, InvoicesToday);
    Show(lblMostResDate, DateOfMostInvoices);
    Show(lblLeastResDate, DateOfLeastInvoices);
    Show(lblMostPopMonth, MostPopularMonth);
    Show(lblLeastPopMonth, LeastPopularMonth);
    Show(lblRecCust, MostRepeatingCustomer);
    Show(lblResThisMonth, [] { return InvoicesInMonthOf(Now()); });
    // "YTD" or not: it is the same month of last year that is shown beside the present one.
    Show(lblResThisMonthYTD, [] { return InvoicesInMonthOf(Now().addYears(-1)); });
    Show(lblTotRes, TotalInvoices);
    RefreshWeek();
}

void StatisticsFrame::RefreshWeek()
{
    int cell = 0;
    for (QDate day = StartOfWeek(); cell < DaysAWeek && day <= Now().date(); day = day.addDays(1))
        Show(lblGuestDOW.at(cell++), [&] { return InvoicesBetween(day, day); });
    for (; cell < DaysAWeek; ++cell)
        lblGuestDOW.at(cell)->setText(QStringLiteral("-"));
}
