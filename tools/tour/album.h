#pragma once

#include <QString>

/// Numbered pictures of the screen, in a folder: "07-item-record.png".
class Album {
public:
    /// Makes the folder. Throws std::runtime_error when it cannot be written.
    explicit Album(const QString& folder);

    /// The windows that show now, each above the other as they opened, with a caption where a frame would be.
    void Take(const char* name);

private:
    QString m_folder;
    int m_number = 0;
};
