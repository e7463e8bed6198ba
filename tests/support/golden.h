#pragma once

#include "paper/report_layout.h"
#include "paper/report_text.h"
#include "support/text_difference.h"

#include <gtest/gtest.h>

#include <QFile>

/// The whole report as text, page by page and section by section, on an A4 sheet unless told otherwise.
inline QString ReportText(const Report& report, ReportPaper paper = {})
{
    ReportLayout layout(report, paper);
    QString text = report.title + "\n";
    for (int page = 0; layout.HasPage(page); ++page)
        text += QStringLiteral("=== page %1\n").arg(page + 1) + PageText(layout.Page(page));
    return text;
}

/// Compares a text with a file of the folder's golden files. With TAVRIN_WRITE_GOLDEN set the file is written anew.
inline void ExpectGolden(const QString& text, const char* name)
{
    QFile file(QStringLiteral(GOLDEN_FOLDER "/") + name);
    if (qEnvironmentVariableIsSet("TAVRIN_WRITE_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << name;
    const std::string difference = Difference(QString::fromUtf8(file.readAll()), text);
    EXPECT_TRUE(difference.empty()) << "not as in golden/" << name << ":\n" << difference;
}
