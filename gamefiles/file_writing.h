// Writes whole files.
#ifndef GAMEFILES_FILE_WRITING_H
#define GAMEFILES_FILE_WRITING_H

#include <filesystem>
#include <fstream>
#include <string_view>

#include "gamefiles/byte_writer.h"

// Creates or replaces the file. Its directory must exist. Returns false if that fails.
inline bool writeFile(const std::filesystem::path& path, std::string_view text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
    return file.good();
}

inline bool writeFile(const std::filesystem::path& path, const Bytes& bytes) {
    return writeFile(path, std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
}

#endif
