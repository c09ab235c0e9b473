// What a program says to its user: in a box, or on standard output where it may ask nothing.
#ifndef UI_WORDS_H
#define UI_WORDS_H

#include <string>

// The title of all boxes of this program: "Tidewright Start" until it is set. Other programs recognize the editor's
// window by its title, so it is never that one's.
const char* boxTitle();
void setBoxTitle(const char* title);

// Without a display the box's text goes to standard error.
void say(const std::string& text, bool onConsole);

// Which button Enter presses.
enum class Buttons { okFirst, cancelFirst };

// Asks in a box with OK and Cancel. With `onConsole` the question is written, and `unasked` is the answer. Without a
// display the question goes to standard error, with a word about "--yes", and the answer is false.
bool confirm(const std::string& question, bool onConsole, bool unasked = true, Buttons buttons = Buttons::okFirst);

#endif
