#pragma once

#include "records/key_list_form.h"

/// Keeps the price lists: adds, renames and removes them. Whoever shows it reads the lists anew afterwards.
class frmMultiplePricing : public KeyListForm {
    Q_OBJECT
public:
    explicit frmMultiplePricing(QWidget* parent);

protected:
    void ShowDetails(qint64 id) override;
    void DeleteRow(qint64 id) override;
};
