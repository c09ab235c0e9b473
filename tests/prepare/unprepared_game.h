// A game that nobody has prepared.
#ifndef TESTS_PREPARE_UNPREPARED_GAME_H
#define TESTS_PREPARE_UNPREPARED_GAME_H

#include <gtest/gtest.h>

#include <set>

#include "prepare/preparation.h"
#include "prepare/template_maker.h"
#include "sample/installation.h"
#include "sample/wine_prefix.h"
#include "tests/prepare/character_chunks.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"
#include "tests/support/tree.h"

namespace fs = std::filesystem;

constexpr const char* skin = "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn";

// The sample game as its player left it, without the skin, and a tool directory as it comes out of a package.
class PreparationTest : public testing::Test {
 protected:
    PreparationTest() {
        EXPECT_TRUE(writeInstallation(files_.path("prefix")));
        directory_ = installGame(files_.path("prefix"));
        fs::remove(game() / skin);
        files_.write("tool/skinsets-original.cfg", "heads");
        fs::current_path(files_.path("tool"));
    }

    fs::path game() const { return gameDirectory(files_.path("prefix")); }
    bool isReady(bool newTemplate = false) {
        const Preparation preparation = prepareGame(directory_.c_str(), newTemplate);
        report_ = preparation.report;
        return preparation.ready;
    }
    bool reports(const std::string& text) const { return report_.find(text) != std::string::npos; }

    void keepOnly(const std::set<std::string>& characterFiles) const {
        for (const auto& [name, bytes] : treeOf(game()))
            if (name.find("Characters") != std::string::npos && !characterFiles.contains(name))
                fs::remove(game() / name);
    }

    // Of the first Sim of the first neighborhood that is an adult and no townie.
    Bytes expectedTemplate() const {
        return makeTemplate(readIff(treeOf(game()).at("UserData/Characters/User00011.iff")).chunks);
    }

    TempDirectory files_;
    std::string directory_, report_;
};

#endif
