#include "restore/same_game.h"

#include "platform/files.h"
#include "platform/path_text.h"

std::string gameOf(const std::string& simsDirectory) {
    return realPath(simsDirectory.substr(0, simsDirectory.find_last_not_of("\\/") + 1)) + '\\';
}

bool isSameGame(const std::string& one, const std::string& other) {
    return one == other || isSameFile(one.c_str(), other.c_str());
}
