#include "invoicing/customer_search.h"

#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/window_place.h"
#include "parties/customer_matches.h"

qint16 frmResCustSearch::SelectedCustomerID = -1;

namespace {

/// The clause for one name; "" for an empty box.
QString NameClause(const char* field, const QString& text)
{
    if (text.isEmpty())
        return {};
    return Sql("{field} LIKE '%{text}%'").Raw("field", QLatin1String(field)).Text("text", text).Filled();
}

Sql SearchStatement(const QString& firstName, const QString& lastName)
{
    const QString first = NameClause("firstname", firstName);
    const QString last = NameClause("lastname", lastName);
    const QString either = first.isEmpty() || last.isEmpty() ? first + last : first + QStringLiteral(" OR ") + last;
    return Sql("SELECT id, firstname, lastname, address1, address2, postcode, phone FROM customer "
               "WHERE {names} ORDER BY lastname, firstname")
        .Raw("names", either.isEmpty() ? QStringLiteral(" id = id ") : either);
}

} // namespace

frmResCustSearch::frmResCustSearch(const QString& firstName, const QString& lastName, QWidget* parent)
    : Form("frmResCustSearch", tr("Customer Search"), parent)
{
    cmdOk->setText(tr("&Start Search"));
    cmdSelect->setText(tr("S&elect"));
    cmdCancel->setText(tr("&Close"));
    auto* results = new QLabel(tr("Search Results:"));
    SetLabelOf(results, gcust);
    setLayout(column({
        fields({{tr("First Name:"), txtFirstname}, {tr("Last Name:"), txtLastname}}),
        row({stretch(), cmdOk}),
        results,
        gcust,
        row({stretch(), cmdSelect, cmdCancel}),
    }));
    resize(GrownWithFont(680, 460));
    cmdOk->setDefault(true);
    cmdSelect->setAutoDefault(false);
    SetCancelButton(cmdCancel);

    gcust->SetColumns(CustomerMatchColumns({2700, 3600, 1300, 1700}));
    gcust->LetDownEnter({txtFirstname, txtLastname});
    gcust->OfferOnRows({cmdSelect});
    gcust->SetEmptyText(tr("Press \"Start Search\" to list the customers of these names."));
    txtFirstname->setText(firstName);
    txtLastname->setText(lastName);

    On(cmdOk, &QPushButton::clicked, this, &frmResCustSearch::RefreshCustomerScreen);
    On(cmdSelect, &QPushButton::clicked, this, &frmResCustSearch::SelectCustomer);
    On(gcust, &FlexGrid::DblClick, this, &frmResCustSearch::SelectCustomer);
}

void frmResCustSearch::RefreshCustomerScreen()
{
    ListMatches();
    if (!cmdSelect->isEnabled())
        MsgBox(
            tr("No matches found. Please try again or press Close to enter new customer details."), Icon::Information);
}

void frmResCustSearch::ListMatches()
{
    const Hourglass hourglass(tr("Searching the customers..."));
    cmdSelect->setEnabled(false);
    gcust->Load(SearchStatement(txtFirstname->text(), txtLastname->text()), 1, 0);
    cmdSelect->setEnabled(gcust->Rows() > 1);
    gcust->SetEmptyText(tr("No customer matches."));
}

void frmResCustSearch::SelectCustomer()
{
    // A list that is empty, or whose filter hides all rows, has nothing to pick: its title row is no customer.
    const qint64 customerId = gcust->CurrentRowData();
    if (customerId == 0)
        return gcust->setFocus();
    SelectedCustomerID = qint16(ToInteger16(customerId));
    accept();
}
