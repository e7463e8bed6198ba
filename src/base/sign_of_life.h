#pragma once

/// Told by work that may last: from the engine while it runs a statement, and from loops without statements, as often
/// as they like. It costs next to nothing, and runs on the screens' thread alone.
void SignOfLife();

/// `show` is called at each sign; null for nobody.
void SetSignOfLife(void (*show)());

/// Told while a statement on the screens' thread waits for another program that has the file, before its signs of life.
void SignOfFileWait();
void SetSignOfFileWait(void (*show)());
