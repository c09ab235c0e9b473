// Clicks that the window system sent to a list or menu that has closed by now.
#ifndef PLATFORM_NATIVE_EVENTS_LATE_CLICKS_H
#define PLATFORM_NATIVE_EVENTS_LATE_CLICKS_H

// From now on, mouse events for a hidden popup go to the window that it belonged to. While a popup is open, an X server
// sends it every click. A busy program closes it late, and Qt would drop the clicks in between.
void passLateClicks();

#endif
