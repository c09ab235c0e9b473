// Chooses the character file that a template is made of.
#ifndef PREPARE_SOURCE_CHOICE_H
#define PREPARE_SOURCE_CHOICE_H

#include <string>
#include <vector>

#include "gamefiles/iff_builder.h"

// Groups character files by their behavior: in a group, the object definitions and the chunks that a template carries
// are the same, in any order. Keeps one copy of each behavior, however many files there are.
class SourceChoice {
 public:
    void add(const std::string& path, const std::vector<IffChunk>& chunks);

    // The path of the first file of the best group: one whose load tree calls no tree of the file's own, and of these
    // the largest. Of groups that are equally large, the one that began first is chosen. Empty if nothing was added.
    std::string best() const;

 private:
    struct Group {
        std::vector<Bytes> behavior;  // the bytes of each chunk, sorted
        std::string path;
        bool callsOwnTreeOnLoad = false;
        int count = 0;
    };
    std::vector<Group> groups_;
};

#endif
