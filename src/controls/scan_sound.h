#pragma once

enum class ScanSound { Found, NotFound };

/// A short sound, unless the setting "Scan Sound" says False, or says nothing where no sound device answers. Never
/// fails and never waits.
void PlayScanSound(ScanSound sound);
