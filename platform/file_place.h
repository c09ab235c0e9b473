// The directory of one file, and the calls in it that a NewVersion consists of: each system's own.
#ifndef PLATFORM_FILE_PLACE_H
#define PLATFORM_FILE_PLACE_H

#include <cstdio>
#include <string>

// Names are those of files in the directory. Where an operation fails, GetLastError has the reason. Renaming and
// removing wait for other programs, as in NewVersion.
class FilePlace {
 public:
    // Whether `rename` replaces a file in one step, as a rule.
    static bool renameReplaces();

    explicit FilePlace(const char* path);
    FilePlace(const FilePlace&) = delete;
    FilePlace& operator=(const FilePlace&) = delete;
    ~FilePlace();

    // The file's own name, spelled as in the directory if it exists there.
    const std::string& name() const { return name_; }

    // Whether the file may be replaced: it is neither a directory nor write-protected. True if there is none.
    bool isReplaceable() const;

    // Whether there is certainly no file of that name.
    bool isFree(const std::string& name) const;

    // Creates a file, with mode and group of `model`, to be written without a buffer. Fails if it exists.
    std::FILE* create(const std::string& name, const char* model) const;

    bool rename(const std::string& from, const std::string& to) const;
    bool remove(const std::string& name) const;

    // Writes the directory's entries through to the disk.
    bool sync() const;

 private:
    std::string name_;
    int directory_ = -1;       // open, where the system has calls that are relative to one
    unsigned long error_ = 0;  // why it couldn't be opened
};

#endif
