#pragma once

/// Gives links a colour of more contrast where the user's palette has them in one that the ground of texts swallows: on
/// dark desktops that tell none, Qt shows them in the blue that is made for white.
void LetLinksBeRead();
