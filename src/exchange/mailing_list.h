#pragma once

#include <QString>

/// The customers' e-mail addresses in order, joined by ", ": each as often as customers have it, and as it is stored.
QString MailingList();

/// Puts the mailing list into the file in place of the file that was there, in the system's encoding. False when it
/// cannot be written; the old file is gone then all the same, but for the data file. Throws RuntimeError when the
/// customers cannot be read.
bool WriteMailingList(const QString& fileName);
