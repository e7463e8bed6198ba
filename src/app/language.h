#pragma once

#include <QString>

/// Shows texts in the language of this code, such as "de" or "fr", in place of the one before. They are written in
/// English, and stay so for "", for an unknown code and for a language that nobody translated to. Call it before the
/// windows are made: those keep their texts.
void SetLanguage(const QString& code);
