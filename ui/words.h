// What a program says to its user: in a box, or on standard output where it was told to ask nothing.
#ifndef UI_WORDS_H
#define UI_WORDS_H

#include <string>

// The title of all boxes but the editor's.
constexpr const char* programTitle = "Tidewright";

// Without a display the box's text goes to standard error.
void say(const std::string& text, bool onConsole);

// Asks in a box with OK and Cancel; with `onConsole` the answer is true and nothing is shown. Without a display the
// question goes to standard error and the answer is false.
bool confirm(const std::string& question, bool onConsole);

#endif
