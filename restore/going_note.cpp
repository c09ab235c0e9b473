#include "restore/going_note.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <string_view>

#include "platform/files.h"
#include "platform/win32.h"
#include "restore/escaped_text.h"
#include "restore/point_files.h"

namespace {

constexpr const char* noteName = "going-back.txt";

constexpr std::array<std::string_view, 4> words = {"target ", "before ", "neighborhood ", "game "};

std::optional<GoingNote> noteOf(std::string_view left) {
    std::array<std::string, words.size()> values;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::size_t end = left.find('\n');
        const bool isLine = left.starts_with(words[i]) && end != std::string_view::npos && end >= words[i].size();
        if (!isLine) return std::nullopt;
        if (!readEscaped(left.substr(words[i].size(), end - words[i].size()), values[i])) return std::nullopt;
        left.remove_prefix(end + 1);
    }
    GoingNote note{values[0], values[1], values[3]};
    const std::string& number = values[2];
    const auto result = std::from_chars(number.data(), number.data() + number.size(), note.neighborhood);
    return result.ec == std::errc() ? std::optional(note) : std::nullopt;
}

}  // namespace

std::optional<GoingNote> readNote(const FileTree& points) {
    const auto text = textOfFile(points, noteName);
    return text ? noteOf(*text) : std::nullopt;
}

bool writeNote(const std::string& pointsDirectory, const GoingNote& note) {
    const std::array<std::string, words.size()> values = {note.target, note.before, std::to_string(note.neighborhood),
                                                          note.simsDirectory};
    std::string text;
    for (std::size_t i = 0; i < words.size(); ++i) {
        text.append(words[i]).append(escaped(values[i])).append(1, '\n');
    }
    if (writeText(pointsDirectory, noteName, text)) return true;
    const DWORD reason = GetLastError();
    DeleteFileA((pointsDirectory + '\\' + noteName).c_str());
    SetLastError(reason);
    return false;
}

bool deleteNote(const FileTree& points) {
    return points.removeFile(noteName) && points.sync("");
}

NoteState stateOfNote(const FileTree& points) {
    if (!points.stampOf(noteName)) return NoteState::none;
    const auto text = textOfFile(points, noteName);
    if (!text) return NoteState::unreadable;
    return noteOf(*text) ? NoteState::good : NoteState::damaged;
}

bool setNoteAside(const FileTree& points) {
    return points.replace(noteName, damagedNoteName);
}
