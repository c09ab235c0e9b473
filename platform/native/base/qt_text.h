// Conversion between the program's text, Windows-1252, and Qt's. Characters outside Windows-1252 become "?".
#ifndef PLATFORM_NATIVE_BASE_QT_TEXT_H
#define PLATFORM_NATIVE_BASE_QT_TEXT_H

#include <QString>
#include <string>
#include <string_view>

QString qtText(std::string_view text);

// Null gives an empty text.
QString qtText(const char* text);

std::string programText(const QString& text);

#endif
