// What the tests' user, support/user.cpp, asks of each window system beyond what the tests themselves ask of the user.
#ifndef TESTS_SUPPORT_WINDOW_SYSTEM_H
#define TESTS_SUPPORT_WINDOW_SYSTEM_H

#include "tests/support/user.h"

// From now on calls workWhenQuiet() each time a message loop of the program, or a box's own, has nothing to do while
// work waits for it.
void watchForQuiet();

// Whether anything waits for a quiet moment; with an open box its answer, else what `later` was given.
bool workWaits(bool boxIsOpen);
void workWhenQuiet(bool boxIsOpen);

// Notes what the box that is open shows.
void lookAtBox(Box& seen);

// Clicks its button "OK" for IDOK or "Cancel" for IDCANCEL; presses Escape where there is none.
void answerBox(int answer);

#endif
