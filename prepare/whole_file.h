// Reads a whole file into memory, and writes one from there.
#ifndef PREPARE_WHOLE_FILE_H
#define PREPARE_WHOLE_FILE_H

#include <cstddef>
#include <optional>
#include <string>

#include "gamefiles/byte_writer.h"

// Far more than any file here has. A map behind it would be out of reach of the 3 bytes that lead to it.
constexpr std::size_t wholeFileLimit = std::size_t{1} << 24;

// Nothing if the file can't be read to its end, or has wholeFileLimit bytes or more. Never reads more than that, from a
// device either.
std::optional<Bytes> readWholeFile(const char* path);

// Writes the file and syncs it. It takes its name, in place of an older file, when it is complete. False on failure,
// with the reason in GetLastError: ERROR_DISK_FULL for each failed write.
bool writeWholeFile(const char* path, const Bytes& bytes);

// Why a file couldn't be written, from GetLastError, as the end of a sentence about it.
std::string writeFailure();

#endif
