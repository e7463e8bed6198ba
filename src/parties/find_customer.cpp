#include "parties/find_customer.h"

#include "controls/hourglass.h"
#include "controls/keys.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/window_place.h"
#include "parties/customer_commands.h"
#include "parties/customer_criteria.h"
#include "parties/customer_matches.h"

#include <QHeaderView>
#include <QScreen>

namespace {

constexpr int FormWidth = 680;
constexpr int NarrowestForm = 560; ///< where the criteria still hold a name
constexpr int BelowSeparator = 300; ///< twips from the top of the last separator to the end of the form
constexpr int FormEdge = 100; ///< twips, so far the buttons stand from the right end
constexpr int SeparatorPixels = 2;
constexpr int RowsWhenGrown = 10;
constexpr int FewestRows = 4;

constexpr CustomerMatchWidths ColumnWidths{2400, 1600, 1100, 1600};

void DrawSeparator(QFrame* separator)
{
    separator->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    separator->setFixedHeight(SeparatorPixels);
}

int HeightOfRows(const FlexGrid* grid, int rows)
{
    return grid->horizontalHeader()->sizeHint().height() + rows * grid->verticalHeader()->defaultSectionSize()
        + 2 * grid->frameWidth();
}

} // namespace

frmFindCustomer::frmFindCustomer(QWidget* parent)
    : Form("frmFindCustomer", tr("Find Customer"), parent)
{
    FillButtons();
    gcust->SetColumns(CustomerMatchColumns(ColumnWidths));
    DrawSeparator(picSep);
    DrawSeparator(picSep2);
    m_results->setLayout(Results());
    auto* form = column({
        row({Criteria(), gap(12), picBut}),
        picSep,
        m_results,
    });
    // Either separator, the second as the last of the results, stands right above the lower margin.
    const int edge = TwipsToPixels(FormEdge);
    form->setContentsMargins(edge, edge, edge, TwipsToPixels(BelowSeparator) - SeparatorPixels);
    form->setStretchFactor(m_results, 1);
    setLayout(form);
    m_results->hide();
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    setMinimumWidth(NarrowestForm);
    resize(GrownWithFont(FormWidth, 0).width(), sizeHint().height());
    DoResize();

    On(cmdOk, &QPushButton::clicked, this, &frmFindCustomer::StartSearch);
    On(cmdCreateCustomer, &QPushButton::clicked, this, [this] {
        gcust->ShowAdded([this] {
            AddCustomer(this);
            RefreshCustomerScreen(1, 0);
        });
    });
    On(cmdEditCustomer, &QPushButton::clicked, this, &frmFindCustomer::EditSelected);
    On(gcust, &RecordList::Opened, this, &frmFindCustomer::EditSelected);
    On(cmdDeleteCustomer, &QPushButton::clicked, this, &frmFindCustomer::DeleteSelected);
    LetKeyClickInWindow(cmdCreateCustomer, QKeySequence::New, this);
    LetKeyClickInWindow(cmdEditCustomer, Qt::Key_F2, this);
    LetKeyClick(cmdDeleteCustomer, Qt::Key_Delete, gcust);
    gcust->OfferOnRows({cmdEditCustomer, cmdCreateCustomer, cmdDeleteCustomer});
    gcust->LetDownEnter({txtFirstname, txtLastname, txtBusinessName, txtAddress1, txtAddress2, txtCity, txtState,
        txtCountry, txtPostcode, txtPhone, txtEmail});
    gcust->SetEmptyText(tr("No customer matches."));
}

QLayout* frmFindCustomer::Criteria()
{
    return fieldColumns({
        {{tr("First Name:"), txtFirstname}, {tr("Last Name:"), txtLastname}, {tr("Business Name:"), txtBusinessName},
            {tr("Address:"), txtAddress1}, {tr("Address:"), txtAddress2}, {tr("City:"), txtCity}},
        {{tr("State:"), txtState}, {tr("Country:"), txtCountry}, {tr("Post Code:"), txtPostcode},
            {tr("Phone:"), txtPhone}, {tr("Email:"), txtEmail}},
    });
}

void frmFindCustomer::FillButtons()
{
    cmdOk->setText(tr("&Start Search"));
    cmdCancel->setText(tr("&Close"));
    cmdCreateCustomer->setText(tr("Add Customer"));
    cmdEditCustomer->setText(tr("View/Edit Customer"));
    cmdDeleteCustomer->setText(tr("Delete Customer"));
    picBut->setLayout(column({cmdOk, cmdCancel, stretch(), cmdCreateCustomer, cmdEditCustomer, cmdDeleteCustomer}));
    picBut->layout()->setContentsMargins(0, 0, 0, 0);
}

QLayout* frmFindCustomer::Results()
{
    gcust->setAccessibleName(tr("Matches"));
    Label1->setText(tr("Total customer matches:"));
    SetLabelOf(Label1, lblTotalCustomers);
    lblTotalCustomers->setTextFormat(Qt::PlainText);
    lblTotalCustomers->setText(QStringLiteral("0"));
    auto* results = column({
        gcust,
        row({Label1, lblTotalCustomers, stretch()}),
        picSep2,
    });
    results->setContentsMargins(0, 0, 0, 0);
    return results;
}

void frmFindCustomer::RefreshCustomerScreen(int row, qint64 selectId)
{
    const QString criteria = AnyCriterion({
        {"firstname", txtFirstname->text()},
        {"lastname", txtLastname->text()},
        {"address1", txtAddress1->text()},
        {"address2", txtAddress2->text()},
        {"city", txtCity->text()},
        {"state", txtState->text()},
        {"country", txtCountry->text()},
        {"postcode", txtPostcode->text()},
        {"phone", txtPhone->text()},
        {"email", txtEmail->text()},
    });
    if (criteria.isEmpty()) {
        MsgBox(
            tr("No criteria to search by has been entered. Please enter some details and try again."), Icon::Critical);
        return;
    }
    const Hourglass hourglass(tr("Searching the customers..."));
    gcust->Load(
        Sql("SELECT id, firstname, lastname, address1, address2, postcode, phone FROM customer WHERE {criteria} "
            "ORDER BY lastname, firstname")
            .Raw("criteria", criteria),
        row, selectId);
    lblTotalCustomers->setText(QString::number(gcust->Rows() - 1));
}

void frmFindCustomer::StartSearch()
{
    RefreshCustomerScreen(1, 0);
    if (IsShort())
        Grow();
    // A list without matches has no row 1.
    Ignoring([this] { gcust->SelectRow(1); });
}

void frmFindCustomer::EditSelected()
{
    EditCustomer(gcust->CurrentRowData(), this);
    RefreshCustomerScreen(1, 0);
}

void frmFindCustomer::DeleteSelected()
{
    if (DeleteCustomer(gcust->CurrentRowData(), gcust->CellText(gcust->Row(), "firstname")))
        RefreshCustomerScreen(gcust->Row(), 0);
}

void frmFindCustomer::Grow()
{
    m_results->show();
    gcust->setMinimumHeight(HeightOfRows(gcust, RowsWhenGrown));
    setMaximumHeight(QWIDGETSIZE_MAX);
    m_results->layout()->activate();
    resize(width(), minimumSizeHint().height());
    gcust->setMinimumHeight(HeightOfRows(gcust, FewestRows));

    const QRect room = screen()->availableGeometry();
    if (const int beyond = frameGeometry().bottom() - room.bottom(); beyond > 0)
        move(x(), std::max(room.top(), y() - beyond));
}

void frmFindCustomer::DoResize()
{
    gcust->SetUpColumns();
    // Room for the scroll bar, or a list longer than the grid would need one across as well.
    gcust->Stretch();
}

void frmFindCustomer::showEvent(QShowEvent* event)
{
    Form::showEvent(event);
    if (IsShort())
        setMaximumHeight(minimumSizeHint().height());
}

void frmFindCustomer::resizeEvent(QResizeEvent* event)
{
    Form::resizeEvent(event);
    Ignoring([this] {
        DoResize();
        gcust->SelectRow(1);
    });
}
