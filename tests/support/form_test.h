#pragma once

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
