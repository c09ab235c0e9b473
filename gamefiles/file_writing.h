// Writes whole files.
#ifndef GAMEFILES_FILE_WRITING_H
#define GAMEFILES_FILE_WRITING_H

#include <filesystem>
#include <string_view>

#include "gamefiles/byte_writer.h"

// Creates or replaces the file. Its directory must exist. Returns false if that fails.
bool writeFile(const std::filesystem::path& path, const Bytes& bytes);
bool writeFile(const std::filesystem::path& path, std::string_view text);

#endif
