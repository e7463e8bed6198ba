#pragma once

#include "controls/flex_grid.h"
#include "controls/form.h"
#include "controls/text_box.h"

#include <QPushButton>

/// The customer picked in frmResCustSearch, -1 for none. A 16-bit number: an id above 32767 ends the program.
extern int SelectedCustomerID;

/// Finds a customer for the invoice by name. Picking one puts its id into SelectedCustomerID.
class frmResCustSearch : public Form {
    Q_OBJECT
public:
    frmResCustSearch(const QString& firstName, const QString& lastName, QWidget* parent);

    /// Lists the customers that match either box, all of them when both are empty. Says so when there are none.
    void RefreshCustomerScreen();

    CONTROL(TextBox, txtFirstname);
    CONTROL(TextBox, txtLastname);
    CONTROL(QPushButton, cmdOk);
    CONTROL(FlexGrid, gcust);
    CONTROL(QPushButton, cmdSelect);
    CONTROL(QPushButton, cmdCancel);

private:
    void ListMatches();
    void SelectCustomer();
};
