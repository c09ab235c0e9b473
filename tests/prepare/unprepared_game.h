// An unprepared game, and the chunks of a sample's character file, to change some of them.
#ifndef TESTS_PREPARE_UNPREPARED_GAME_H
#define TESTS_PREPARE_UNPREPARED_GAME_H

#include "gamefiles/iff_reader.h"
#include "prepare/preparation.h"
#include "prepare/template_maker.h"
#include "sample/fact_template.h"
#include "sample/installation.h"
#include "tests/support/machine.h"
#include "tests/support/temp_directory.h"

using Chunks = std::vector<IffChunk>;

inline Chunks chunksOf(const SampleCharacter& character) {
    return readIff(makeCharacterFile(character).bytes).chunks;
}

// There must be one.
inline IffChunk& chunkIn(Chunks& chunks, const std::string& type, int id) {
    return *std::ranges::find_if(chunks, [&](const IffChunk& chunk) { return chunk.type == type && chunk.id == id; });
}

// A template as a save needs it, of the smallest size. The changed byte is a letter of the label or of the text by
// which the template of earlier packages is recognized.
constexpr std::size_t labelLetter = 4000, textLetter = 143;
inline Bytes playersTemplate(std::size_t changed = labelLetter) {
    Bytes file = makeFactTemplate();
    file.resize(55'143);
    file[changed] ^= 0x20;
    return file;
}

// The sample game as its player left it, without the skin, and a tool directory as it comes out of a package.
class PreparationTest : public testing::Test {
 protected:
    PreparationTest() {
        EXPECT_TRUE(writeInstallation(files_.path("prefix")));
        directory_ = installGame(files_.path("prefix"));
        fs::remove_all(game_ / "GameData");
        fs::copy(characters_ / "User00011.iff", characters_ / "TMPUser00011.iff");  // as a save that broke off leaves
        fs::copy(characters_ / "User00011.iff", characters_ / "User00011.bak");     // a player's own copy
        files_.write("tool/skinsets-original.cfg", "heads");
        fs::current_path(files_.path("tool"));
    }

    bool isReady(bool newTemplate = false, Editions editions = Editions::base) {
        const Preparation preparation = prepareGame(directory_.c_str(), "skinsets-original.cfg", newTemplate, editions);
        report_ = preparation.report;
        return preparation.ready;
    }
    bool reports(const std::string& text) const { return report_.find(text) != std::string::npos; }

    // Of the first Sim of the first neighborhood that is an adult and no townie.
    Bytes expectedTemplate() const { return makeTemplate(readIff(treeOf(characters_).at("User00011.iff")).chunks); }

    TempDirectory files_;
    const fs::path game_ = gameDirectory(files_.path("prefix"));
    const fs::path characters_ = game_ / "UserData/Characters";
    const fs::path skin_ = game_ / "GameData/Skins/xskin-c601fa_amanda-HEAD-HEAD.skn";
    std::string directory_, report_;
};

#endif
