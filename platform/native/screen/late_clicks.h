// Clicks that the window system gave to a list or menu which had closed meanwhile.
#ifndef PLATFORM_NATIVE_SCREEN_LATE_CLICKS_H
#define PLATFORM_NATIVE_SCREEN_LATE_CLICKS_H

// From now on, mouse events that reach a hidden popup go to the window that it belonged to. While a popup is open, an X
// server sends it every click; a busy program closes it later than the player meant, and Qt drops what came in between.
void passLateClicks();

#endif
