#include <QProcess>
#include <cstring>
#include <string_view>

#include "platform/native/api/system.h"

namespace {

constexpr ULONG_PTR started = 33;
constexpr ULONG_PTR noAssociation = 31;

HINSTANCE resultOf(ULONG_PTR code) {
    return reinterpret_cast<HINSTANCE>(code);  // NOLINT(performance-no-int-to-ptr): a number, by Windows' custom
}

bool isWebAddress(std::string_view address) {
    return address.starts_with("http://") || address.starts_with("https://");
}

// Starts a program found along $PATH, in its own session so that it outlives this program and its terminal.
bool start(QStringList command) {
    QProcess process;
    process.setProgram(command.takeFirst());
    process.setArguments(command);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    return process.startDetached();
}

// The parts of one command of $BROWSER, with the address in place of "%s", or last if there is none.
QStringList browserCommand(const QString& text, const QString& address) {
    QStringList command = text.split(' ', Qt::SkipEmptyParts);
    if (!text.contains("%s")) command.append("%s");
    return command.replaceInStrings("%s", address);
}

// xdg-open follows the user's settings. Without it, $BROWSER lists commands, separated by colons.
bool openInBrowser(const QString& address) {
    if (start({"xdg-open", address})) return true;
    const QStringList browsers = qEnvironmentVariable("BROWSER").split(':', Qt::SkipEmptyParts);
    return std::any_of(browsers.begin(), browsers.end(),
                       [&](const QString& text) { return start(browserCommand(text, address)); });
}

}  // namespace

HINSTANCE ShellExecuteA(HWND, LPCSTR verb, LPCSTR file, LPCSTR parameters, LPCSTR directory, int) {
    const bool opens = verb != nullptr && std::strcmp(verb, "open") == 0;
    if (!opens || file == nullptr || !isWebAddress(file) || parameters != nullptr || directory != nullptr) {
        return resultOf(noAssociation);
    }
    if (openInBrowser(QString::fromUtf8(file))) return resultOf(started);
    SetLastError(ERROR_FILE_NOT_FOUND);
    return resultOf(ERROR_FILE_NOT_FOUND);
}
