// Writing the finished files of the sample.
#ifndef GAMEFILES_FILE_WRITING_H
#define GAMEFILES_FILE_WRITING_H

#include <filesystem>
#include <string_view>

#include "gamefiles/byte_writer.h"

// Writes the file anew, byte for byte; its directory must exist. False if that fails.
bool writeFile(const std::filesystem::path& path, const Bytes& bytes);
bool writeFile(const std::filesystem::path& path, std::string_view text);

#endif
