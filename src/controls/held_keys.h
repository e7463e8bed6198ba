#pragma once

/// From the first call on, a key that is held down acts once, until it is let go and pressed again, whatever window has
/// opened meanwhile: Enter, Space, Insert, Delete, Esc, function keys, keys with Alt, and all keys in a message box.
/// Keys that move go on, and so does what writes in a text box, as long as the key was pressed there.
///
/// Sees keys before the event filters that were installed before the call, so one that is installed later calls anew.
void LetHeldKeysActOnce();
