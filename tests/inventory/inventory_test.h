#pragma once

#include "config/new_row.h"
#include "inventory/edit_item.h"
#include "inventory/item_details.h"
#include "support/form_check.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"

#include <QVBoxLayout>

#include <memory>

/// A panel in a window of its own.
template <typename PanelClass>
class PanelTest : public DatabaseTest {
protected:
    void ShowPanel()
    {
        (new QVBoxLayout(&window))->addWidget(panel);
        window.resize(900, 600);
        Shown(&window);
    }

    QWidget window;
    PanelClass* panel = new PanelClass(&window);
    ScriptedAnswers answers;
};

/// A form, opened without its caller.
template <typename FormClass>
class FormTest : public DatabaseTest {
protected:
    void Open()
    {
        form = std::make_unique<FormClass>(nullptr);
        Shown(form.get());
    }

    std::unique_ptr<FormClass> form;
    ScriptedAnswers answers;
};

class ItemFormTest : public FormTest<frmItemDetails> {
protected:
    void Open(qint32 itemId)
    {
        gEditItemId = itemId;
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
