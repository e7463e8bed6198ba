#pragma once

/// Told by work that may last: from the engine while it runs a statement, and from loops without statements, as often
/// as they like. It costs next to nothing, and runs on the screens' thread alone.
void SignOfLife();

/// `show` is called at each sign; null for nobody.
void SetSignOfLife(void (*show)());
