// What earlier versions have left: the player's files of version 1.1.0, which was unpacked into the game's directory
// and kept them there, and the links of version 1.0.0 to what its Debian package had installed.
#ifndef START_EARLIER_VERSION_H
#define START_EARLIER_VERSION_H

#include <string>
#include <vector>

// The names of the player's files that lie in the game's directory (with a trailing backslash) and aren't in the
// working directory yet.
std::vector<std::string> filesOfEarlierVersion(const std::string& simsDirectory);

// Copies them into the working directory; those in the game's directory stay. Returns an empty text, or a sentence that
// names the file that couldn't be copied.
std::string takeOver(const std::string& simsDirectory, const std::vector<std::string>& names);

// Deletes those links in the working directory that lead nowhere any more. A player's own link to another place stays.
void deleteLinksOfVersion100();

#endif
