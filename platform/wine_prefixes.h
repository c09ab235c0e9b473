// The Wine prefixes of this user, in which Windows programs are installed. Paths are native and absolute, without a
// separator at their end.
//
// On Windows there is one machine instead, the prefix "".
#ifndef PLATFORM_WINE_PREFIXES_H
#define PLATFORM_WINE_PREFIXES_H

#include <string>
#include <vector>

// Whether programs are in Wine prefixes here.
bool hasWinePrefixes();

// The prefix that the user's environment names, whatever form it has there. Empty if it names none.
std::string chosenWinePrefix();

// Makes `prefix` the one that paths and registry of this process and of its children belong to.
void useWinePrefix(const std::string& prefix);

// Where prefixes are looked for, to be shown: "~/.wine", "~/Games/*".
std::vector<std::string> winePrefixPlaces();

// The prefixes in these places, each once, in the order of the places. A prefix is a directory with a registry.
std::vector<std::string> foundWinePrefixes();

// The prefix that is `directory` itself, or lies in it where its owner puts one there (Steam's "pfx"), or above it.
// Empty if there is none.
std::string winePrefixAt(const std::string& directory);
std::string winePrefixAbove(const std::string& directory);

// A directory that a text of the registry names.
struct RegisteredDirectory {
    std::string text;                      // as the registry has it, to be shown; empty if there is no such text
    std::vector<std::string> directories;  // those that it may mean: several only for short (8.3) names
};

// Reads the value `name` of `key`, below HKEY_LOCAL_MACHINE, in the registry of `prefix`. Unlike the calls of the
// program's paths this finds names outside Windows-1252, short names, and drive C without Wine's link to it.
RegisteredDirectory registeredDirectory(const std::string& prefix, const char* key, const char* name);

// The directories `below` the directories of the prefix's users, on Windows that of the user.
std::vector<std::string> usersDirectories(const std::string& prefix, const std::string& below);

// Makes `value` of `key` lead to `directory`, whatever its path, for a program that knows only the registry and the
// drives. Natively by a small prefix in a directory of `place`, which is used from then on; it is made, or found there
// if it was made before, and never changed. On Windows by an entry in the registry of 32-bit programs, unless there is
// one. False if that fails, with the reason in GetLastError.
bool registerDirectory(const std::string& directory, const std::string& place, const char* key, const char* value);

#endif
