// Every story begins with the sample installation and a tool directory that has the program's data files.
#ifndef TESTS_STORIES_INSTALLATION_H
#define TESTS_STORIES_INSTALLATION_H

#include <gtest/gtest.h>

#include <string>

#include "sample/installation.h"
#include "tests/support/build_directory.h"
#include "tests/support/temp_directory.h"

class Stories : public testing::Test {
 protected:
    Stories() {
        writeInstallation(prefix());
        files_.makeDirectory("tool");
        for (const char* name : {"skinsets.cfg", "Template.iff", "famtemplate"})
            std::filesystem::copy_file(buildDirectory() / name, std::filesystem::path(toolDirectory()) / name);
    }

    std::string prefix() const { return files_.path("prefix"); }
    std::string toolDirectory() const { return files_.path("tool"); }
    std::filesystem::path game() const { return gameDirectory(prefix()); }

 private:
    TempDirectory files_;
};

#endif
