#pragma once

#include "diary.h"

#include <QtGlobal>

/// One run of the program, from its start to its end, over the shop in a folder.
struct Life {
    QString folder;
    quint64 seed;
    int firstEvent;
    int events;
};

/// Lives it in this process, which must have no windows yet. Returns when the main window has closed.
void Live(const Life& life, const Diary& diary);

/// Makes a demo shop, with settings, a program's folder and files to pick, in an empty folder.
void MakeShop(const QString& folder, const QString& programFolder);
