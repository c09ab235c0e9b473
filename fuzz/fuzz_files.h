// Shared by the fuzzing targets: a directory for their files, and a check that ends the program.
#ifndef FUZZ_FUZZ_FILES_H
#define FUZZ_FUZZ_FILES_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

#include "gamefiles/byte_writer.h"

using FuzzInput = std::span<const std::uint8_t>;

// A directory of this process, deleted at its end.
const std::filesystem::path& fuzzDirectory();

// The name is relative to that directory. Creates the directories in it.
void writeFuzzFile(const std::string& name, FuzzInput bytes);
Bytes readFuzzFile(const std::filesystem::path& path);

// If the promise isn't kept, prints `what` and aborts, which makes the fuzzer keep the input.
void promise(bool isKept, const char* what);

#endif
