#pragma once

#include "paper/report_layout.h"

#include <gtest/gtest.h>
#include <QString>

#include <functional>

/// The whole report as text, page by page and section by section, on an A4 sheet unless told otherwise.
QString ReportText(const Report& report, ReportPaper paper = {});

/// The text of a file in the folder "golden" beside the test.
QString GoldenText(const char* name);
/// Compares a text with that of a golden file. With TAVRIN_WRITE_GOLDEN set the file is written anew.
void ExpectGolden(const QString& text, const char* name);

/// What is to be answered to a given text, below a heading of the file that says what is done with it.
using AnswerTo = std::function<QString(const QString& act, const QString& given)>;

/// Holds the cases of a golden file: "given => answer", a line each, below headings "[act locale]", without a locale in
/// the United States; other lines are remarks. What is given may stand in quotation marks; backslashes write what
/// cannot be seen, as in C.
void ExpectCases(const char* name, const AnswerTo& answer);
