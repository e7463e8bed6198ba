#pragma once

#include "diary.h"

#include <QHash>
#include <QStringList>

/// Looks, whenever the program waits for its user, whether all is as it should be. What is not is told to the diary as
/// a finding, and ends the process.
class Watch {
public:
    Watch(const Diary& diary, const QString& folder);

    void Look();
    [[noreturn]] void Found(const QString& what) const;
    /// All that can be seen of the file: the engine's own check, and that no row points at one that is not there.
    /// The first thing found wrong, or "".
    static QString WrongInFile(const QString& path);

    /// The monkey's own, where it may write.
    const QString& Folder() const { return m_folder; }
    /// Those of the shop's items, as they are now.
    QStringList BarCodes() const;

private:
    using Stock = QHash<QString, double>;
    void LookAtStock();
    void LookAtFile() const;
    void LookAtWidgets();

    const Diary& m_diary;
    QString m_folder;
    int m_looks = 0;
    int m_changes = -1;
    Stock m_stock;
    qsizetype m_widgets = 0;
};
