#pragma once

struct sqlite3;

/// What the translated statements need beyond the engine's own functions, registered on each connection. Nothing of it
/// stands in the file.

inline constexpr const char* LikeFunction = "tavrin_like"; ///< (pattern, text)
inline constexpr const char* FoldFunction = "tavrin_fold"; ///< text for a comparison without regard to case
inline constexpr const char* ConvertFunction = "tavrin_convert"; ///< (number of a Value::Kind, value)
inline constexpr const char* LocaleCollation = "tavrin_locale"; ///< the order of the user's locale

void RegisterEngineFunctions(sqlite3* handle);
