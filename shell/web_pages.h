// The program's pages on the web.
#ifndef SHELL_WEB_PAGES_H
#define SHELL_WEB_PAGES_H

enum class WebPage { help, questions, donation };

// Opens the page in the user's browser, if possible.
void openWebPage(WebPage page);

#endif
