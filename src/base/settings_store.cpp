#include "base/settings_store.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSettings>
#include <QVariant>

namespace {

const QString ConfigApplication = QStringLiteral("Tavrin Inventory");
const QString ConfigSection = QStringLiteral("Config");
const QString OptionApplication = QStringLiteral("TavrinInventory");
const QString OptionSection = QStringLiteral("Options");

QString gFolder;

/// A section's or key's name as QSettings reads it: %XX and %UXXXX stand for one character, a backslash for a slash.
QString NameOf(const QByteArray& written)
{
    static const QRegularExpression escape(QStringLiteral("%(?:U([0-9A-Fa-f]{4})|([0-9A-Fa-f]{2}))"));
    const QString text = QString::fromUtf8(written.trimmed()).replace(u'\\', u'/');
    QString name;
    qsizetype behind = 0;
    for (const QRegularExpressionMatch& match : escape.globalMatch(text)) {
        name += QStringView(text).sliced(behind, match.capturedStart() - behind);
        name += QChar((match.captured(1) + match.captured(2)).toUShort(nullptr, 16));
        behind = match.capturedEnd();
    }
    name += QStringView(text).sliced(behind);
    return name;
}

/// True for one text in quotes, as the store itself writes it, with a remark behind it or none.
bool IsQuoted(const QByteArray& text)
{
    if (!text.startsWith('"'))
        return false;
    qsizetype at = 1;
    while (at < text.size() && text.at(at) != '"')
        at += text.at(at) == '\\' ? 2 : 1;
    const QByteArray behind = text.mid(at + 1).trimmed();
    return at < text.size() && (behind.isEmpty() || behind.startsWith(';'));
}

/// The texts of an INI file, by section and key, that stand there without quotes as a person writes them, with a comma
/// or a semicolon. Qt takes them for lists and remarks.
QHash<QString, QString> HandwrittenTexts(const QString& path)
{
    QHash<QString, QString> texts;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return texts;
    QString section;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().trimmed();
        const qsizetype equals = line.indexOf('=');
        const QByteArray text = line.mid(equals + 1).trimmed();
        const qsizetype bracket = line.indexOf(']');
        if (line.startsWith('['))
            section = NameOf(line.mid(1, bracket < 0 ? bracket : bracket - 1));
        else if (equals > 0 && !line.startsWith(';') && !IsQuoted(text) && (text.contains(',') || text.contains(';')))
            texts.insert(section + QLatin1Char('/') + NameOf(line.left(equals)), QString::fromUtf8(text));
    }
    return texts;
}

/// True where Qt has taken a text for a list: the program saves texts alone.
bool IsList(const QVariant& value)
{
    // The latter where one of them begins with an at-sign.
    return value.typeId() == QMetaType::QStringList || value.typeId() == QMetaType::QVariantList;
}

/// What a key of the store has: as it was written by hand, and also where its quotes are broken.
QString TextOf(const QVariant& value, const QString& key, const QHash<QString, QString>& handwritten)
{
    return handwritten.value(key, IsList(value) ? value.toStringList().join(QLatin1String(", ")) : value.toString());
}

/// False for a name written by hand that the store keeps but takes for another one: it drops slashes that are too many.
bool CanBeAskedFor(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(u'/') && !name.endsWith(u'/') && !name.contains(QLatin1String("//"));
}

/// Runs `use` on the store of one application, which is one file.
template <typename Use>
auto WithStore(const QString& application, Use&& use)
{
    if (gFolder.isEmpty()) {
        QSettings store(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("Tavrin"), application);
        store.setFallbacksEnabled(false);
        return use(store);
    }
    QSettings store(gFolder + QLatin1Char('/') + application + QStringLiteral(".ini"), QSettings::IniFormat);
    return use(store);
}

} // namespace

QString GetSetting(const QString& application, const QString& section, const QString& key, const QString& fallback)
{
    return WithStore(application, [&](QSettings& store) {
        const QString name = section + QLatin1Char('/') + key;
        // A line that is broken takes none of the others along, so the store's status does not matter.
        if (!store.contains(name))
            return fallback;
        return TextOf(store.value(name), name, HandwrittenTexts(store.fileName()));
    });
}

void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value)
{
    WithStore(application, [&](QSettings& store) {
        // The whole store is written anew: what was written by hand is to stay.
        const auto texts = HandwrittenTexts(store.fileName());
        for (const QString& name : store.allKeys()) {
            if (!CanBeAskedFor(name))
                continue;
            if (const QVariant old = store.value(name); IsList(old) || texts.contains(name))
                store.setValue(name, TextOf(old, name, texts));
        }
        store.setValue(section + QLatin1Char('/') + key, value);
        store.sync();
    });
}

QString GetConfig(const QString& key, const QString& fallback)
{
    return GetSetting(ConfigApplication, ConfigSection, key, fallback);
}

void SaveConfig(const QString& key, const QString& value)
{
    SaveSetting(ConfigApplication, ConfigSection, key, value);
}

QString GetOption(const QString& key, const QString& fallback)
{
    return GetSetting(OptionApplication, OptionSection, key, fallback);
}

void SaveOption(const QString& key, const QString& value)
{
    SaveSetting(OptionApplication, OptionSection, key, value);
}

QString SettingsFolder()
{
    return WithStore(ConfigApplication, [](const QSettings& store) { return QFileInfo(store.fileName()).path(); });
}

void SetSettingsFolder(const QString& folder)
{
    gFolder = folder;
}
