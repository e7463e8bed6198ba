#pragma once

#include "controls/form.h"
#include "controls/text_box.h"
#include "records/record_list.h"

#include <QPushButton>

/// Finds a customer for the invoice by name. Picking one puts its id into SelectedCustomerID, where one above
/// 32767 is an overflow.
class frmResCustSearch : public Form {
    Q_OBJECT
public:
    /// The customer picked, -1 for none.
    static qint16 SelectedCustomerID;

    frmResCustSearch(const QString& firstName, const QString& lastName, QWidget* parent);

    /// Lists the customers that match either box, all of them when both are empty. Says so when there are none.
    void RefreshCustomerScreen();

    CONTROL(TextBox, txtFirstname);
    CONTROL(TextBox, txtLastname);
    CONTROL(QPushButton, cmdOk);
    CONTROL(RecordList, gcust);
    CONTROL(QPushButton, cmdSelect);
    CONTROL(QPushButton, cmdCancel);

private:
    void ListMatches();
    void SelectCustomer();
};
