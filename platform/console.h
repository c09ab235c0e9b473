// Words for the terminal that a program was started from. Texts are the program's own, with "\n" at the end of a line.
#ifndef PLATFORM_CONSOLE_H
#define PLATFORM_CONSOLE_H

#include <string>

// Writes to standard output, or to standard error. On Windows, where a program with windows has neither unless it was
// started with a file or pipe for them, the text goes to the console of the program that started this one. False if
// there is nothing to write to or it can't be written.
bool writeToOutput(const std::string& text);
bool writeToErrors(const std::string& text);

#endif
