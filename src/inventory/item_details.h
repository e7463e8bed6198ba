#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/number_box.h"
#include "controls/text_box.h"
#include "inventory/custom_fields.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

/// The item record: creates and edits one item, its price in every price list and its custom field values. Controls
/// made when the form loads stand in the order of the declarations like all others, as the form is read.
class frmItemDetails : public Form {
    Q_OBJECT
public:
    /// The item to edit, NewRow for a new one. The form puts the id of an item it added here.
    static qint32 gEditItemId;

    explicit frmItemDetails(QWidget* parent);

    CONTROL_AT(TextBox, txtFields, 3);
    CONTROL_AT(TextBox, txtFields, 5);
    CONTROL_AT(MultiLineTextBox, txtFields, 1);
    CONTROL_AT(TextBox, txtFields, 0);

    CONTROL_AT(QLabel, lblPriceList, 0);
    CONTROL_AT(NumberBox, txtPriceList, 0);

private:
    struct PriceBox {
        QLabel* label;
        TextBox* box; ///< its property "Tag" is the price list's id
    };
    QList<PriceBox> m_prices = MakePriceBoxes();

public:
    CONTROL(QWidget, picBot); ///< holds the fields below the prices
    CONTROL_AT(NumberBox, txtFields, 6);
    CONTROL_AT(NumberBox, txtFields, 7);
    CONTROL_AT(NumberBox, txtFields, 4);
    CONTROL_AT(NumberBox, txtFields, 2);
    CONTROL(ComboBox, cboCategory);
    CONTROL(ComboBox, cboSubCategory);
    CONTROL(ComboBox, cboVendor);
    CONTROL(ComboBox, cboTaxRate);
    CONTROL(ComboBox, cboWarehouse);
    CONTROL(ComboBox, cboStorage);

private:
    CustomFields m_customFields = MakeCustomFields();

public:
    CONTROL(QWidget, picBotButts); ///< holds the buttons
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // What the boxes of the array are for.
    TextBox* const m_number = txtFields_3;
    TextBox* const m_name = txtFields_5;
    MultiLineTextBox* const m_description = txtFields_1;
    TextBox* const m_barcode = txtFields_0;
    TextBox* const m_noInStock = txtFields_6;
    TextBox* const m_reorderLevel = txtFields_7;
    TextBox* const m_minStockLevel = txtFields_4;
    TextBox* const m_warrantyReturns = txtFields_2;

    template <typename Control>
    Control* MakeMember(const char* array, int index)
    {
        return Make<Control>(QStringLiteral("%1_%2").arg(QLatin1String(array)).arg(index).toLatin1().constData());
    }
    QList<PriceBox> MakePriceBoxes();
    CustomFields MakeCustomFields();

    QGridLayout* m_upperFields = nullptr; ///< down to the prices
    QGridLayout* m_lowerFields = nullptr;

    void SetLengths();
    QLayout* MainFields();
    QLayout* CustomFieldLines();
    void FitToScreen();
    void Connect();

    void FillLists();
    void ShowSubCategories();
    void ShowLocations();
    void ProposeNewItem();
    void ShowStoredItem();
    void ShowItem(const class Recordset& item);
    void ShowStorage(const QString& locationId);
    void ShowPrices();

    void Save();
    bool MayBeSaved() const;
    void RepairEntries();
    void UpdateItem() const;
    void AddNewItem() const;
    void SavePrices() const;
};
