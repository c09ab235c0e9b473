// File names are the same in any case.
#ifndef PREPARE_LOWER_CASE_H
#define PREPARE_LOWER_CASE_H

#include <algorithm>
#include <cctype>
#include <string>

// Changes ASCII letters only.
inline std::string lowered(std::string name) {
    std::ranges::transform(name, name.begin(), [](unsigned char letter) { return std::tolower(letter); });
    return name;
}

#endif
