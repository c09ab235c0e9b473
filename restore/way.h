// Taking the steps to the files of a restore point.
#ifndef RESTORE_WAY_H
#define RESTORE_WAY_H

#include <string>
#include <vector>

#include "platform/file_tree.h"
#include "restore/restore_points.h"
#include "restore/steps.h"

// Each live file is replaced in one step: first all files but the neighborhoods' own, then those, then the files that
// the point doesn't have are deleted.
class Way {
 public:
    // The trees and the point must outlive this object.
    Way(const FileTree& points, const FileTree& live, const RestorePoint& target, Steps steps);
    Way(const Way&) = delete;
    Way& operator=(const Way&) = delete;
    // Deletes the new versions that didn't take a name.
    ~Way();

    // Makes all new versions, complete and on the disk, without their names. False, with a sentence in `error`, also if
    // a file of the point hasn't the checksum that it was made with.
    bool prepare(std::string& error);

    // Refuses to replace a file that was changed since the steps were found. After a failure some files may be those of
    // the point already.
    bool take(std::string& error);

 private:
    bool areFew() const { return steps_.size() <= fewFiles; }
    bool areNamesAlone() const;
    bool syncDirectories() const;
    bool syncDisks() const;
    bool makePart(const PointFile& file, std::string& part, std::string& error);
    bool takeStep(const Step& step, std::string& part) const;

    const FileTree& points_;
    const FileTree& live_;
    const RestorePoint& target_;
    Steps steps_;
    std::vector<std::string> parts_;  // by step; empty without one
    bool hasNewDirectory_ = false;
};

#endif
