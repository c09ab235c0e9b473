// All files below a directory with their bytes, to compare them with what is expected.
#ifndef TESTS_SUPPORT_TREE_H
#define TESTS_SUPPORT_TREE_H

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

#include "gamefiles/byte_writer.h"

using Tree = std::map<std::string, Bytes>;

inline Tree treeOf(const std::filesystem::path& directory) {
    Tree tree;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
        if (!entry.is_regular_file()) continue;
        std::ifstream file(entry.path(), std::ios::binary);
        tree[std::filesystem::relative(entry.path(), directory).generic_string()] = {
            std::istreambuf_iterator<char>(file), {}};
    }
    return tree;
}

// Puts `bytes` over those of `file` from `offset` on; the file's length stays.
inline void overwrite(Bytes& file, std::size_t offset, const Bytes& bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i)
        file.at(offset + i) = bytes[i];
}

// The names of the files that differ, or are only in one of the trees; empty for equal trees.
inline std::string differences(const Tree& expected, const Tree& actual) {
    Tree different;
    std::set_symmetric_difference(expected.begin(), expected.end(), actual.begin(), actual.end(),
                                  std::inserter(different, different.end()));
    std::string names;
    for (const auto& [name, bytes] : different)
        names += name + "\n";
    return names;
}

#endif
