// Text in one line of a file: control characters and "%" as "%0A" and "%25".
#ifndef RESTORE_ESCAPED_TEXT_H
#define RESTORE_ESCAPED_TEXT_H

#include <string>
#include <string_view>

std::string escaped(std::string_view text);

// Appends what `line` means to `text`. False if it isn't of this form.
bool readEscaped(std::string_view line, std::string& text);

#endif
