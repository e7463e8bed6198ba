#include "reports/reports_panel.h"

#include "platform/layout.h"

#include <QResizeEvent>

#include <algorithm>

namespace {

// The graph's place beside the statistics, in twips; it does not follow the width of the window.
constexpr int GraphLeft = 3870;
constexpr int GraphWidth = 7215;
constexpr int ExpandLeft = 3910;
constexpr int ExpandedMargin = 50;

constexpr int Spacing = 6;
constexpr int FirstWeekdayLabel = 52;
constexpr int DaysAWeek = 7;

QLabel* NamedLabel(const QString& name, const QString& text)
{
    auto* label = new QLabel(text);
    label->setObjectName(name);
    return label;
}

QLabel* BoldLabel(const QString& text)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

/// A figure, unknown until the statistics are taken.
QLabel* Figure(const QString& name)
{
    QLabel* label = NamedLabel(name, QStringLiteral("-"));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    return label;
}

} // namespace

ReportsPanel::ReportsPanel(QWidget* parent)
    : Panel("picReports", parent)
    , Label1_2(NamedLabel(QStringLiteral("Label1_2"), QString()))
    , Frame2(new QFrame)
    , c(new QFrame)
    , m_body(new QWidget)
    , m_choices(new QWidget)
{
    SetTitle(tr("Reports"));
    TopIcon()->show();
    TitleLabel()->show();
    setLayout(column({row({TopIcon(), TitleLabel(), stretch()}), m_body}));
    static_cast<QBoxLayout*>(layout())->setStretchFactor(m_body, 1);

    Label1_2->setParent(m_body);
    Label1_2->setFrameShape(QFrame::StyledPanel);

    Frame2->setParent(m_body);
    Frame2->setObjectName(QStringLiteral("Frame2"));
    Frame2->setLayout(column({BuildStatistics()}));
    Frame2->layout()->setContentsMargins(0, 0, 0, 0);

    for (const char* name : {"Invoices this month", "Invoices per month", "Compare Item Sales!"})
        cboGraphType->AddItem(tr(name), 0);
    for (const char* name : {"3D Bar", "2D Bar", "3D Line", "2D Line", "3D Area", "2D Area", "3D Step", "2D Step"})
        cboGraphStyle->AddItem(tr(name), 0);
    auto* lblGraphType = new QLabel(tr("View Graph:"));
    auto* lblGraphStyle = new QLabel(tr("Graph Style:"));
    SetLabelOf(lblGraphType, cboGraphType);
    SetLabelOf(lblGraphStyle, cboGraphStyle);
    m_choices->setParent(m_body);
    m_choices->setLayout(row({lblGraphType, cboGraphType, gap(2 * Spacing), lblGraphStyle, cboGraphStyle, stretch()}));
    m_choices->layout()->setContentsMargins(0, 0, 0, 0);

    c->setParent(m_body);
    c->setObjectName(QStringLiteral("c"));
    c->setFrameShape(QFrame::StyledPanel);
    c->setAutoFillBackground(true);
    c->setBackgroundRole(QPalette::Base);

    cmdExpand->setParent(m_body);
    cmdExpand->setText(tr("<< Expand"));
    On(cmdExpand, &QPushButton::clicked, [this] { ToggleExpand(); });

    const int besideStatistics = std::max(
        TwipsToPixels(GraphWidth), cmdExpand->sizeHint().width() + m_choices->sizeHint().width() + 4 * Spacing);
    m_body->setMinimumSize(
        TwipsToPixels(GraphLeft) + besideStatistics + Spacing, Frame2->minimumSizeHint().height() + 2 * Spacing);
}

QWidget* ReportsPanel::BuildStatistics()
{
    lblTotalResToday = Figure(QStringLiteral("lblTotalResToday"));
    lblMostResDate = Figure(QStringLiteral("lblMostResDate"));
    lblLeastResDate = Figure(QStringLiteral("lblLeastResDate"));
    lblMostPopMonth = Figure(QStringLiteral("lblMostPopMonth"));
    lblLeastPopMonth = Figure(QStringLiteral("lblLeastPopMonth"));
    lblRecCust = Figure(QStringLiteral("lblRecCust"));
    lblResThisMonth = Figure(QStringLiteral("lblResThisMonth"));
    lblResThisMonthYTD = Figure(QStringLiteral("lblResThisMonthYTD"));
    lblTotRes = Figure(QStringLiteral("lblTotRes"));

    auto* week = new QGridLayout;
    const QStringList days{tr("Monday:"), tr("Tuesday:"), tr("Wednesday:"), tr("Thursday:"), tr("Friday:"),
        tr("Saturday:"), tr("Sunday:")};
    for (int day = 0; day < DaysAWeek; ++day) {
        m_weekdays.append(NamedLabel(QStringLiteral("lblLabels_%1").arg(FirstWeekdayLabel + day), days.at(day)));
        lblGuestDOW.append(Figure(QStringLiteral("lblGuestDOW_%1").arg(day)));
        week->addWidget(m_weekdays.last(), day, 0);
        week->addWidget(lblGuestDOW.last(), day, 1);
    }
    auto* picRepThisWeek = new QWidget;
    picRepThisWeek->setObjectName(QStringLiteral("picRepThisWeek"));
    picRepThisWeek->setLayout(week);
    week->setContentsMargins(0, 0, 0, 0);

    return group(tr("Statistics"),
        column({
            fields({
                {tr("Total invoices today:"), lblTotalResToday},
                {tr("Most invoices on:"), lblMostResDate},
                {tr("Least invoices on:"), lblLeastResDate},
                {tr("Most popular month:"), lblMostPopMonth},
                {tr("Least popular month:"), lblLeastPopMonth},
                {tr("Most repeating customer:"), lblRecCust},
                {tr("Invoices this month:"), lblResThisMonth},
                {tr("Invoices this month YTD:"), lblResThisMonthYTD},
                {tr("Total invoices:"), lblTotRes},
            }),
            gap(Spacing),
            BoldLabel(tr("Invoices this week")),
            picRepThisWeek,
            stretch(),
        }));
}

void ReportsPanel::ShowWeekdays(const QStringList& names)
{
    for (int day = 0; day < DaysAWeek; ++day)
        m_weekdays.at(day)->setText(names.at(day));
}

void ReportsPanel::ToggleExpand()
{
    m_expanded = !m_expanded;
    cmdExpand->setText(m_expanded ? tr("Shrink >>") : tr("<< Expand"));
    Frame2->setVisible(!m_expanded);
    PlaceParts();
    emit Expanded();
}

void ReportsPanel::resizeEvent(QResizeEvent* event)
{
    Panel::resizeEvent(event);
    PlaceParts();
}

void ReportsPanel::PlaceParts()
{
    // The body may stand out of sight and unlaid; its place is the panel's below the head.
    layout()->activate();
    const QRect frame = m_body->rect();
    Label1_2->setGeometry(frame);

    const int left = m_expanded ? frame.left() + TwipsToPixels(ExpandedMargin) : TwipsToPixels(GraphLeft);
    const int width = m_expanded ? frame.width() - TwipsToPixels(2 * ExpandedMargin) : TwipsToPixels(GraphWidth);
    const int buttonLeft = left + TwipsToPixels(ExpandLeft - GraphLeft);
    const QSize button = cmdExpand->sizeHint();
    const int lineHeight = std::max(button.height(), m_choices->sizeHint().height());
    cmdExpand->setGeometry(buttonLeft, frame.top() + Spacing, button.width(), lineHeight);
    const int choicesLeft = buttonLeft + button.width() + 2 * Spacing;
    m_choices->setGeometry(choicesLeft, frame.top() + Spacing, frame.right() - choicesLeft - Spacing, lineHeight);

    const int top = frame.top() + 2 * Spacing + lineHeight;
    c->setGeometry(left, top, width, frame.bottom() - top - Spacing);
    Frame2->setGeometry(frame.left() + Spacing, frame.top() + Spacing, TwipsToPixels(GraphLeft) - 2 * Spacing,
        frame.height() - 2 * Spacing);
}
