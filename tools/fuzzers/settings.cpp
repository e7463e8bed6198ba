#include "fuzzing.h"

#include "base/settings_store.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <iterator>

/// The settings store, written by hand and by the program. Lines that begin with '=' are values to save, their second
/// character the key; all others are the file as a person left it.

namespace {

constexpr const char* Keys[] = {
    "DBPath", "Show Tips at Startup", "Current Tip", "PostCode", "gInventoryColWidth0", "InvoiceFontSize", "Größe"};
const QString Section = QStringLiteral("Config");
const QString Absent = QStringLiteral("(absent)");

QString KeyOf(char choice)
{
    return QString::fromUtf8(Keys[uint8_t(choice) % std::size(Keys)]);
}

/// Each input has a file of its own: a store that was read is kept in memory for a while.
QString NewStore(const QByteArray& written)
{
    static const QTemporaryDir folder;
    static quint64 number = 0;
    SetSettingsFolder(folder.path());
    QString application = QStringLiteral("Store%1").arg(++number);
    QDir(folder.path()).remove(QStringLiteral("Store%1.ini").arg(number - 1));
    if (!written.isEmpty()) {
        QFile file(folder.filePath(application + QLatin1String(".ini")));
        Expect(file.open(QFile::WriteOnly) && file.write(written) == written.size(), "the store is written");
    }
    return application;
}

QHash<QString, QString> ValuesIn(const QString& application)
{
    QHash<QString, QString> values;
    for (const char* key : Keys) {
        const QString name = QString::fromUtf8(key);
        values.insert(name, GetSetting(application, Section, name, Absent));
    }
    return values;
}

} // namespace

void Fuzz(FuzzInput input)
{
    constexpr int MostSaves = 8;
    QByteArray byHand;
    QList<std::pair<QString, QString>> saves;
    while (!input.AtEnd()) {
        const QByteArrayView line = input.Line();
        if (line.size() < 2 || line.front() != '=' || saves.size() == MostSaves)
            byHand += line.toByteArray() + '\n';
        else
            saves.append({KeyOf(line[1]), AnyText(line.sliced(2)).replace(QChar(0x1F), u'\n')});
    }
    const QString application = NewStore(byHand);
    QHash<QString, QString> values = ValuesIn(application);
    for (const auto& [key, value] : saves) {
        SaveSetting(application, Section, key, value);
        values[key] = value;
        Expect(GetSetting(application, Section, key, Absent) == value, "a value that is saved reads back");
    }
    Expect(ValuesIn(application) == values, "and all others stay");
}
