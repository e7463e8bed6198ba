#pragma once

#include "inventory/item_details.h"
#include "support/test.h"

class ItemFormTest : public FormTest<frmItemDetails> {
protected:
    void Open(qint32 itemId)
    {
        frmItemDetails::gEditItemId = itemId;
        FormTest::Open();
    }

    /// Clicks OK and expects the form to close.
    void SaveAndClose()
    {
        Click(form->cmdOk);
        EXPECT_FALSE(form->isVisible());
    }

    template <typename Control>
    Control* Member(const char* name)
    {
        return Find<Control>(form.get(), name);
    }
};
