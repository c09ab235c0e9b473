// The search for other programs' windows on the X server.
#ifndef PLATFORM_NATIVE_XSERVER_TITLE_SEARCH_H
#define PLATFORM_NATIVE_XSERVER_TITLE_SEARCH_H

// Whether the X server at $DISPLAY has a top-level window with exactly this title. False if there is no server, or none
// that answers within a second.
bool isTitleOnServer(const char* title);

#endif
