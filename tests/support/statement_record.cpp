#include "support/statement_record.h"

#include "db/connection_private.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace {

QSet<QString> gShapes;

class Record : public testing::Environment {
    void TearDown() override
    {
        QFile file(qEnvironmentVariable("TAVRIN_STATEMENTS"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        for (const QString& shape : gShapes)
            file.write(shape.toUtf8() + '\n');
    }
};

} // namespace

void RecordStatements()
{
    if (!qEnvironmentVariableIsSet("TAVRIN_STATEMENTS"))
        return;
    testing::AddGlobalTestEnvironment(new Record);
    ConnectionPrivate::StatementListener = [](const QString& statement) {
        static const QRegularExpression values("'[^']*'|[0-9]");
        gShapes.insert(QString(statement).remove(values).simplified());
    };
}
