#include "base/settings_store.h"

#include <QSettings>

namespace {

const QString ConfigApplication = QStringLiteral("Tavrin Inventory");
const QString ConfigSection = QStringLiteral("Config");
const QString OptionApplication = QStringLiteral("TavrinInventory");
const QString OptionSection = QStringLiteral("Options");

QString gFolder;

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
        store.beginGroup(section);
        if (store.status() != QSettings::NoError || !store.contains(key))
            return fallback;
        return store.value(key).toString();
    });
}

void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value)
{
    WithStore(application, [&](QSettings& store) {
        store.beginGroup(section);
        store.setValue(key, value);
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

void SetSettingsFolder(const QString& folder)
{
    gFolder = folder;
}
