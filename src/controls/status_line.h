#pragma once

#include <QObject>
#include <QString>

/// Where screens tell what they have just done, and what asks for no answer. The main window shows it.
class StatusLine : public QObject {
    Q_OBJECT
public:
    static StatusLine& Get();

signals:
    void Told(const QString& text);
};

void ShowStatus(const QString& text);
/// Says where a file was written: its absolute path, in the platform's form.
void ShowSavedAs(const QString& path);
