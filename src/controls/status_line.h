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
