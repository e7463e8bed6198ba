#pragma once

#include "controls/form.h"
#include "controls/text_box.h"
#include "records/record_list.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

/// Finds customers by any of ten texts and manages those found. Opens short, with the criteria alone, and grows with
/// the first search to show the matches.
class frmFindCustomer : public Form {
    Q_OBJECT
public:
    explicit frmFindCustomer(QWidget* parent);

    /// Lists the customers that match at least one box, and selects the row of `selectId`, else row number `row`. With
    /// all ten boxes empty says so and leaves the list as it is. Throws RuntimeError when a text breaks the statement.
    void RefreshCustomerScreen(int row, qint64 selectId);

    CONTROL(TextBox, txtFirstname);
    CONTROL(TextBox, txtLastname);
    CONTROL(TextBox, txtBusinessName); ///< the search takes no notice of it
    CONTROL(TextBox, txtAddress1);
    CONTROL(TextBox, txtAddress2);
    CONTROL(TextBox, txtCity);
    CONTROL(TextBox, txtState);
    CONTROL(TextBox, txtCountry);
    CONTROL(TextBox, txtPostcode);
    CONTROL(TextBox, txtPhone);
    CONTROL(TextBox, txtEmail);
    CONTROL(QWidget, picBut); ///< holds the buttons
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);
    CONTROL(QPushButton, cmdCreateCustomer);
    CONTROL(QPushButton, cmdEditCustomer);
    CONTROL(QPushButton, cmdDeleteCustomer);
    CONTROL(QFrame, picSep); ///< ends the short form
    CONTROL(RecordList, gcust);
    CONTROL(QLabel, Label1);
    CONTROL(QLabel, lblTotalCustomers);
    CONTROL(QFrame, picSep2); ///< ends the tall form

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QLayout* Criteria();
    QLayout* Results();
    void FillButtons();
    bool IsShort() const { return m_results->isHidden(); }
    void Grow();
    void DoResize();
    void StartSearch();
    void EditSelected();
    void DeleteSelected();

    QWidget* m_results = new QWidget(this);
};
