#pragma once

#include <QString>

/// The per-user store of text values, addressed by application key, section and key. It lives where the platform keeps
/// per-user settings. A store that cannot be read counts as empty; one that cannot be written is left.

/// `fallback` when the key is absent.
QString GetSetting(const QString& application, const QString& section, const QString& key, const QString& fallback);
void SaveSetting(const QString& application, const QString& section, const QString& key, const QString& value);

/// The two addresses in use.
QString GetConfig(const QString& key, const QString& fallback); ///< application "Tavrin Inventory", section "Config"
void SaveConfig(const QString& key, const QString& value);
QString GetOption(const QString& key, const QString& fallback); ///< application "TavrinInventory", section "Options"
void SaveOption(const QString& key, const QString& value);

/// The folder that holds the stores.
QString SettingsFolder();
/// Tests point it at a temporary one. "" brings the platform's own place back.
void SetSettingsFolder(const QString& folder);
