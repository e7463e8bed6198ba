#include "support/golden.h"

#include "base/regional.h"
#include "base/runtime_error.h"
#include "paper/report_text.h"
#include "support/text_difference.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

namespace {

const QString Arrow = QStringLiteral("=>");
/// "\n" for a line end, "\u00a0" for a blank that does not break.
QString Visible(const QString& text)
{
    QString visible;
    for (const QChar character : text) {
        if (character == u'\n' || character == u'\r' || character == u'\t' || character == u'\\')
            visible += QLatin1String(character == u'\n' ? "\\n"
                    : character == u'\r'                ? "\\r"
                    : character == u'\t'                ? "\\t"
                                                        : "\\\\");
        else if (character.isPrint() && (character == u' ' || !character.isSpace()))
            visible += character;
        else
            visible += QStringLiteral("\\u%1").arg(int(character.unicode()), 4, 16, QLatin1Char('0'));
    }
    return visible;
}

QString Meant(QString visible)
{
    const QJsonDocument text =
        QJsonDocument::fromJson("[\"" + visible.replace(u'"', QLatin1String("\\\"")).toUtf8() + "\"]");
    return text.array().at(0).toString();
}

QString Given(const QString& written)
{
    const QString given = written.trimmed();
    const bool isQuoted = given.size() > 1 && given.startsWith(u'"') && given.endsWith(u'"');
    return Meant(isQuoted ? given.mid(1, given.size() - 2) : given);
}

QString PathOf(const char* name)
{
    const QFileInfo test(QString::fromUtf8(testing::UnitTest::GetInstance()->current_test_info()->file()));
    return test.path() + QStringLiteral("/golden/") + QLatin1String(name);
}

} // namespace

QString ReportText(const Report& report, ReportPaper paper)
{
    ReportLayout layout(report, paper);
    QString text = report.title + u'\n';
    for (int page = 0; layout.HasPage(page); ++page)
        text += QStringLiteral("=== page %1\n").arg(page + 1) + PageText(layout.Page(page));
    return text;
}

QString GoldenText(const char* name)
{
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << name;
    return QString::fromUtf8(file.readAll());
}

void ExpectGolden(const QString& text, const char* name)
{
    if (qEnvironmentVariableIsSet("TAVRIN_WRITE_GOLDEN")) {
        QFile file(PathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        return;
    }
    const std::string difference = Difference(GoldenText(name), text);
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    EXPECT_TRUE(difference.empty()) << "not as in golden/" << name << ":\n"
                                    << difference << "\nIf that is meant: TAVRIN_WRITE_GOLDEN=1 "
                                    << qPrintable(QCoreApplication::applicationFilePath())
                                    << " --gtest_filter=" << test.test_suite_name() << '.' << test.name()
                                    << "   # then read its diff";
}

void ExpectCases(const char* name, const AnswerTo& answer)
{
    QStringList lines = GoldenText(name).split(u'\n');
    QString act;
    int cases = 0;
    for (QString& line : lines) {
        const qsizetype arrow = line.lastIndexOf(Arrow);
        if (arrow < 0) {
            if (line.startsWith(u'[')) {
                const QStringList heading = line.mid(1, line.lastIndexOf(u']') - 1).split(u' ');
                act = heading[0];
                SetRegional(QLocale(heading.value(1, QStringLiteral("en_US"))));
            }
            continue;
        }
        ++cases;
        QString answered;
        try {
            answered = Visible(answer(act, Given(line.left(arrow))));
        } catch (const RuntimeError& error) {
            answered = QStringLiteral("error %1").arg(error.Number());
        }
        line = QString(line.left(arrow) + Arrow + u' ' + answered).trimmed();
    }
    EXPECT_GT(cases, 0) << "no case in golden/" << name;
    ExpectGolden(lines.join(u'\n'), name);
}
