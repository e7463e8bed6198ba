#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"

#include <QRadioButton>

#include <array>

/// Asks how the reorder report is to be filtered and sorted.
class frmReorderReportFilter : public Form {
    Q_OBJECT
public:
    /// The choice, for the report; it lives until the next use.
    static bool ReorderFilterConfirmed; ///< the form was left with OK
    static int ReorderFilterKind; ///< 0 no filter, 1 vendor, 2 item, 3 location
    static QString ReorderFilterValue; ///< the chosen id, "-1" without a filter
    static QString ReorderSortField;

    explicit frmReorderReportFilter(QWidget* parent);

    CONTROL_AT(QRadioButton, optFilter, 0);
    CONTROL_AT(QRadioButton, optFilter, 1);
    CONTROL(ComboBox, cboVendor);
    CONTROL_AT(QRadioButton, optFilter, 2);
    CONTROL(ComboBox, cboItem);
    CONTROL_AT(QRadioButton, optFilter, 3);
    CONTROL(ComboBox, cboItemLocation);
    CONTROL(ComboBox, cboSort);
    CONTROL(QPushButton, cmdDisplay);
    CONTROL(QPushButton, cmdCancel);

private:
    struct Filter {
        QRadioButton* option;
        ComboBox* list;
    };
    /// In the order of the kinds 1 to 3.
    std::array<Filter, 3> Filters() const;

    void BuildLayout();
    void FillLists();
    void EnableChosenList();
    void Confirm();
};
