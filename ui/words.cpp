#include "ui/words.h"

#include "platform/console.h"
#include "platform/win32.h"

namespace {

const char* title = "Tidewright Start";

}  // namespace

const char* boxTitle() {
    return title;
}

void setBoxTitle(const char* newTitle) {
    title = newTitle;
}

void say(const std::string& text, bool onConsole) {
    if (onConsole) {
        writeToOutput(text + "\n");
    } else {
        MessageBoxA(nullptr, text.c_str(), title, MB_OK | MB_SETFOREGROUND);
    }
}

bool confirm(const std::string& question, bool onConsole, bool unasked, Buttons buttons) {
    if (onConsole) {
        writeToOutput(question + (unasked ? "\n[OK]\n" : "\n[Cancel]\n"));
        return unasked;
    }
    const UINT focus = buttons == Buttons::cancelFirst ? MB_DEFBUTTON2 : MB_DEFBUTTON1;
    const int answer = MessageBoxA(nullptr, question.c_str(), title, MB_OKCANCEL | focus | MB_SETFOREGROUND);
    if (answer == 0) say("Without a display this needs the option --yes.", false);
    return answer == IDOK;
}
