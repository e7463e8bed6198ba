#pragma once

// What tests share: everything in tests/support, and of Qt and of the rooms below what more than one of them uses. A
// test includes this and what it tests.

#include "base/clock.h"
#include "base/files.h"
#include "base/guard.h"
#include "base/regional.h"
#include "base/runtime_error.h"
#include "base/settings_store.h"
#include "controls/date_picker.h"
#include "controls/form.h"
#include "controls/layout.h"
#include "controls/status_line.h"
#include "controls/text_box.h"
#include "db/new_row.h"
#include "support/file_size_limit.h"
#include "support/files.h"
#include "support/form_check.h"
#include "support/golden.h"
#include "support/keyboard.h"
#include "support/previews.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"
#include "support/wizard_walk.h"

#include <gtest/gtest.h>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDateEdit>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGroupBox>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>

#include <memory>
#include <random>

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

/// The number of the run-time error that `act` ends in; 0 for none.
template <typename Act>
int ErrorOf(Act&& act)
{
    try {
        act();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}
