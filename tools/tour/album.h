#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// Numbered pictures of the screen, in a folder, "07-item-record.png", and the page that shows them, "index.html".
class Album {
public:
    /// Makes the folder. Throws std::runtime_error, as all of these do, when it cannot be written. What a picture shows
    /// is checked on the way (CheckReading); the letters in `sharedKeys` may be access keys twice. Where the folder has
    /// a folder `windows`, it gets pictures of the nearest window alone, "item-record.png", no wider than a page of the
    /// help.
    Album(const QString& folder, const QString& sharedKeys);

    /// The pictures that follow stand under this heading.
    void Chapter(const char* heading);
    /// The windows that show now, each above the other as they opened, with a caption where a frame would be. The name
    /// is the picture's caption too: small letters with hyphens between the words.
    void Take(const char* name);
    void WriteIndex() const;

private:
    void KeepWindow(const QString& name, QWidget& window) const;

    QString m_folder;
    QString m_sharedKeys;
    int m_number = 0;
    QStringList m_index;
};
