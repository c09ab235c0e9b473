#include "platform/native/base/qt_text.h"

#include "platform/native/base/text1252.h"

QString qtText(std::string_view text) {
    return QString::fromStdString(utf8From1252(text));
}

QString qtText(const char* text) {
    return text == nullptr ? QString() : qtText(std::string_view(text));
}

std::string programText(const QString& text) {
    return text1252FromUtf8(text.toStdString());
}
