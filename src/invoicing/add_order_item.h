#pragma once

#include "base/currency.h"
#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/number_box.h"
#include "controls/text_box.h"
#include "records/record_list.h"

#include <QLabel>
#include <QPushButton>

/// Finds an item and says how many of it go on the invoice at which price. Writes nothing to the database; the result
/// is in its static members, and SelectedItemID stays as the caller set it when the window is just closed.
class frmAddOrderItem : public Form {
    Q_OBJECT
public:
    /// What the form hands back: the item (-1 for none), how many of it, and its price before tax and discount.
    static qint32 SelectedItemID;
    static qint32 SelectedItemQuantity;
    static Currency SelectedItemPrice;

    /// Opens with all items at the prices of `priceListId`, the list of the invoice's customer.
    frmAddOrderItem(qint64 priceListId, QWidget* parent);

    /// Refills the list by the search fields and makes the first match the current one.
    void DoSearch();

    CONTROL(ComboBox, cboCategory);
    CONTROL(ComboBox, cboSubCategory);
    CONTROL(TextBox, txtItemName);
    CONTROL(TextBox, txtItemDescription);
    CONTROL(TextBox, txtItemNumber);
    CONTROL(QPushButton, cmdSearch);
    CONTROL(ComboBox, cboPriceList);
    CONTROL(QLabel, lblItemMatches);
    CONTROL(RecordList, gItems);
    CONTROL(NumberBox, txtQuantityToAdd);
    CONTROL(NumberBox, txtItemPrice);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void SetCaptions();
    void BuildLayout();
    void Connect();
    void FillCategories();
    void FillSubCategories();
    void ShowPriceOfCurrentItem();
    QString PriceText(qint64 itemId) const;
    void TakeItem();
};
