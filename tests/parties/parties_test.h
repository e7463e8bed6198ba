#pragma once

#include "config/new_row.h"
#include "parties/customer_record.h"
#include "support/form_check.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"

#include <memory>

class PartiesTest : public DatabaseTest {
protected:
    /// The first column of a list.
    static QStringList Names(const FlexGrid* grid)
    {
        QStringList names;
        for (const QStringList& row : GridRows(grid))
            names.append(row.first());
        return names;
    }

    ScriptedAnswers answers;
};

/// A form, opened without its caller.
template <typename FormClass>
class PartyFormTest : public PartiesTest {
protected:
    void Open()
    {
        form = std::make_unique<FormClass>(nullptr);
        Shown(form.get());
    }

    std::unique_ptr<FormClass> form;
};
