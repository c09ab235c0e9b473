#include "ui/words.h"

#include "platform/console.h"
#include "platform/win32.h"

void say(const std::string& text, bool onConsole) {
    if (onConsole) {
        writeToOutput(text + "\n");
    } else {
        MessageBoxA(nullptr, text.c_str(), programTitle, MB_OK);
    }
}

bool confirm(const std::string& question, bool onConsole) {
    return onConsole || MessageBoxA(nullptr, question.c_str(), programTitle, MB_OKCANCEL) == IDOK;
}
