// What the fuzzing targets share: a directory for the files that they make up, and a promise that ends the program when
// it is broken, so that the fuzzer keeps the input.
#ifndef FUZZ_FUZZ_FILES_H
#define FUZZ_FUZZ_FILES_H

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

#include "gamefiles/byte_writer.h"

using FuzzInput = std::span<const std::uint8_t>;

// A directory of this process's own, which goes when the process ends.
const std::filesystem::path& fuzzDirectory();

// Makes the directories on the way.
void writeFuzzFile(const std::string& name, FuzzInput bytes);
Bytes readFuzzFile(const std::filesystem::path& path);

void promise(bool isKept, const char* what);

#endif
