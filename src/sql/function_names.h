#pragma once

/// What translated statements call beyond the engine's own functions. The engine's room registers them on each
/// connection; nothing of it stands in the file.

inline constexpr const char* LikeFunction = "tavrin_like"; ///< (pattern, text)
inline constexpr const char* FoldFunction = "tavrin_fold"; ///< text for a comparison without regard to case
inline constexpr const char* SpellingsFunction = "tavrin_spellings"; ///< (table, column, text) as a JSON array
inline constexpr const char* ConvertFunction = "tavrin_convert"; ///< (number of a Value::Kind, value)
inline constexpr const char* SortKeyFunction = "tavrin_sort_key"; ///< bytes for a text that are in the locale's order
inline constexpr const char* LocaleCollation = "tavrin_locale"; ///< the same order where single texts are compared
