#pragma once

/// Lets the text of a run-time error show in a box instead of on the error stream.
void InstallErrorBox();
