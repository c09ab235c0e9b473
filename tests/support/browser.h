// The browser that shows the pages of the program. Each system has its own implementation in a folder beside this file.
#ifndef TESTS_SUPPORT_BROWSER_H
#define TESTS_SUPPORT_BROWSER_H

#include <string>

// From now on a page that this process opens isn't shown: its address is added to the file, as a line of its own.
void writePagesTo(const std::string& file);

#endif
