#pragma once

#include <QString>

#include <optional>

/// The providers in the order of the list that offers them.
constexpr int BuiltInProvider = 0;
constexpr int CustomProvider = 1;

/// Where the requests from the web page go.
struct WebOrderSettings {
    QString email; ///< receives the requests
    int providerIndex = BuiltInProvider; ///< who mails them; 16 bits wide
    QString customProvider; ///< the form target of the custom provider
};

/// Nothing when `settings` has no row. Throws RuntimeError when the statement fails, or the index is Null or beyond 16
/// bits.
std::optional<WebOrderSettings> ReadWebOrderSettings();

/// Writes the three columns by three statements. The texts are not guarded: one with an apostrophe throws RuntimeError,
/// and the columns before it keep their new values.
void StoreWebOrderSettings(const WebOrderSettings& settings);
