#include "platform/native/api/profile.h"

#include <QSettings>
#include <algorithm>
#include <cstring>
#include <string>

#include "platform/native/api/system.h"
#include "platform/native/files/paths.h"

namespace {

QSettings opened(LPCSTR file) {
    return {QString::fromUtf8(nativePath(file).c_str()), QSettings::IniFormat};
}

QString keyOf(LPCSTR section, LPCSTR name) {
    return QString::fromUtf8(section) + '/' + QString::fromUtf8(name);
}

}  // namespace

DWORD GetPrivateProfileStringA(LPCSTR section, LPCSTR name, LPCSTR defaultText, LPSTR text, DWORD size, LPCSTR file) {
    if (size == 0) return 0;
    const QByteArray value =
        opened(file).value(keyOf(section, name), QString::fromUtf8(defaultText)).toString().toUtf8();
    const auto length = std::min<std::size_t>(static_cast<std::size_t>(value.size()), size - 1);
    std::memcpy(text, value.constData(), length);
    text[length] = '\0';
    return static_cast<DWORD>(length);
}

BOOL WritePrivateProfileStringA(LPCSTR section, LPCSTR name, LPCSTR text, LPCSTR file) {
    QSettings settings = opened(file);
    if (text == nullptr) {
        settings.remove(keyOf(section, name));
    } else {
        settings.setValue(keyOf(section, name), QString::fromUtf8(text));
    }
    settings.sync();
    if (settings.status() == QSettings::NoError) return TRUE;
    SetLastError(ERROR_ACCESS_DENIED);
    return FALSE;
}
