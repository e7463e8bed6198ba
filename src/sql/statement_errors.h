#pragma once

#include "base/runtime_error.h"

#include <QString>
#include <QStringView>

/// The numbers and texts of failing statements, as the screens show them.

inline constexpr int GeneralFailure = -2147467259;
inline constexpr int SyntaxFailure = -2147217900;
inline constexpr int UnknownNameFailure = -2147217904;
inline constexpr int UnknownTableFailure = -2147217865;
inline constexpr int TypeMismatchFailure = -2147217913;
inline constexpr int TooLongFailure = -2147217833;
inline constexpr int FieldTypeFailure = -2147352571;
inline constexpr int NoCurrentRecord = 3021;
inline constexpr int UnknownField = 3265;
inline constexpr int ObjectClosed = 3704;

RuntimeError CannotOpen(const QString& path, const QString& reason);
RuntimeError UnknownNameError();
RuntimeError UnknownTableError(QStringView table);
RuntimeError AmbiguousNameError(QStringView field);
RuntimeError CriteriaMismatchError();
RuntimeError FieldMismatchError();
RuntimeError NumericOverflowError();
RuntimeError NoCurrentRecordError();
RuntimeError UnknownFieldError();
RuntimeError ObjectClosedError();
/// "Syntax error in UPDATE statement." and its like.
RuntimeError SyntaxError(const QString& description);
RuntimeError TooComplexError();
RuntimeError MissingOperatorError(QStringView expression);
RuntimeError OpenTextError(QStringView expression);
RuntimeError DateLiteralError(QStringView expression);
