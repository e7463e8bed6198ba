#pragma once

#include <QByteArray>
#include <QString>

/// Writes a file of these bytes over what may stand there.
void WriteFile(const QString& path, const QByteArray& bytes);
/// The bytes of a file; "no file" when there is none.
QByteArray ReadFile(const QString& path);
