#include "arguments.h"
#include "database_maker.h"

#include "base/runtime_error.h"

#include <QCoreApplication>

#include <cstdio>
#include <exception>

namespace {

enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

int Complain(ExitStatus status, const QString& message)
{
    std::fprintf(stderr, "make-database: %s\n", qPrintable(message));
    return status;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    try {
        const QStringList words = QCoreApplication::arguments().mid(1);
        if (words.contains(QStringLiteral("--help"))) {
            std::fputs(UsageText, stdout);
            return Done;
        }
        MakeDatabaseWith(ReadArguments(words));
        return Done;
    } catch (const UsageError& error) {
        Complain(WrongUsage, error.message);
        std::fputs(UsageText, stderr);
        return WrongUsage;
    } catch (const RuntimeError& error) {
        return Complain(Failed, error.Description());
    } catch (const std::exception& error) {
        return Complain(Failed, QString::fromUtf8(error.what()));
    }
}
