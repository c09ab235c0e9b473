// Installations in a temporary directory, made once for all benchmarks, and bare reading and copying to measure the
// program against.
#ifndef BENCH_INSTALLATIONS_H
#define BENCH_INSTALLATIONS_H

#include <filesystem>
#include <vector>

// The game's directory, with a trailing backslash: one neighborhood of 566 KB with 216 Sims. It is deleted at exit.
const char* largeSimsDirectory();
std::filesystem::path largeNeighborhoodDirectory();

// A copy of that neighborhood, for saving.
std::filesystem::path savedNeighborhoodDirectory();

// The game's directory of an installation with `count` such neighborhoods, whose files are links to the same bytes.
const char* manySimsDirectory(int count);

std::filesystem::path largeNeighborhoodFile();
std::vector<std::filesystem::path> largeCharacterFiles();

// Wine prefixes: that of the installation with one large neighborhood, which is WINEPREFIX, and that of the sample.
std::filesystem::path largePrefix();
std::filesystem::path samplePrefix();

// A directory with the files that the program needs beside it.
std::filesystem::path toolDirectory();

// Opens, reads in one go and closes. Returns the number of bytes.
std::size_t readWhole(const std::filesystem::path& path);

// Asks for the size of each of these files of one directory. Returns the sum.
std::int64_t sizesTogether(const std::vector<std::filesystem::path>& files);

// Reads and writes through one buffer. With `durable` the disk holds the copy when this returns.
void copyPlainly(const std::filesystem::path& from, const std::filesystem::path& to, bool durable);

#endif
