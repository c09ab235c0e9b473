#include "start/left_overs.h"

#include "tests/start/evening_game.h"

namespace {

class LeftOversTest : public EveningTest {
 protected:
    // Files of "UserData" by name, with their bytes; nothing is for none.
    using Files = std::vector<std::pair<std::string, std::optional<Bytes>>>;

    void change(const Files& all) const {
        for (const auto& [name, bytes] : all)
            bytes ? write(name, *bytes) : files().remove("UserData/" + name);
    }
};

TEST_F(LeftOversTest, AMissingOrBrokenFileIsReplacedByTheWholeVersionThatFits) {
    const std::string live = "neighborhood.iff", temporary = "TMP" + live, aside = ".tidewright-old0";
    const std::string sim = "Characters/user00001.iff", simsTemporary = "Characters/TMPuser00001.iff";
    const std::string backup = "Backups/neighborhood.20261124.2154.iff";
    const std::string simsBackup = "Characters/Backups/user00001.20261124.iff";
    const Bytes old = makeNeighborhoodFile({.freeRoom = true}).bytes, now = makeNeighborhoodFile({.map = false}).bytes;
    const Bytes cut(old.begin(), old.begin() + 80), none, hers = makeCharacterFile({.guid = 1}).bytes;
    const Bytes newSim = makeFactTemplate(), cutSim(newSim.begin(), newSim.begin() + 54'500);
    const std::tuple<const char*, Files, std::string, std::string> rows[] = {
        {"ended between two renames", {{live, {}}, {live + aside, old}, {temporary, now}}, live, temporary},
        {"the new version is cut", {{live, {}}, {live + aside, old}, {temporary, cut}}, live, live + aside},
        {"ended so at a Sim", {{sim, {}}, {sim + aside, hers}, {simsTemporary, newSim}}, sim, sim + aside},
        {"a Sim's file was moved", {{sim, {}}, {simsBackup, hers}, {simsTemporary, newSim}}, sim, simsBackup},
        {"an older version ended in the copy", {{live, none}, {temporary, now}}, live, temporary},
        {"it had written a part", {{live, cut}, {temporary, now}}, live, temporary},
        {"both are empty", {{live, none}, {temporary, none}, {backup, old}, {backup + ".txt", now}}, live, backup},
        {"a Sim's file is a part", {{sim, cutSim}, {simsTemporary, newSim}, {simsBackup, hers}}, sim, simsBackup},
        {"it has no backup", {{sim, cutSim}, {simsTemporary, newSim}}, sim, simsTemporary},
    };
    for (const auto& [what, state, file, version] : rows) {
        SCOPED_TRACE(what);
        start();
        change(state);
        const Bytes expected = bytesOf(version);
        const std::vector<LeftOver> found = findLeftOvers(game());
        ASSERT_TRUE(!found.empty() && found[0].isOffer());
        EXPECT_TRUE(putInPlace(found[0]));
        EXPECT_EQ(bytesOf(file), expected);
        EXPECT_EQ(files().exists("UserData/" + version), version.find("Backups") != std::string::npos);
        for (const LeftOver& later : findLeftOvers(game()))
            EXPECT_FALSE(later.isOffer()) << later.sentence;
        EXPECT_FALSE(putInPlace(found[0])) << "the file is whole now";
    }
}

TEST_F(LeftOversTest, WhatDoesNoHarmIsNamedWithoutAnOffer) {
    const std::string live = "neighborhood.iff", sim = "Characters/TMPuser00099.iff";
    const std::string end = " is left over from a save that was cut off. It does no harm; you may delete it.";
    const Bytes some = bytesFrom("some"), odd(5000), whole = makeNeighborhoodFile({}).bytes;
    const std::tuple<const char*, Files, std::string> rows[] = {
        {"nothing", {{"TMPhouse.iff", some}, {"Characters/user00001.bak", some}}, ""},
        {"part of a backup", {{"Backups/x.iff.tidewright-new0", some}}, "x.iff.tidewright-new0" + end},
        {"another tool's own form", {{live, odd}, {"TMP" + live, whole}}, "TMPneighborhood.iff" + end},
        {"a copy of version 1.1.0", {{"~part1234.tmp", some}}, "~part1234.tmp" + end},
        {"a Sim who is gone", {{sim, makeFactTemplate()}}, "TMPuser00099.iff" + end},
        {"an old version without a backup",
         {{live + ".tidewright-old0", some}},
         "neighborhood.iff.tidewright-old0 is an old version of neighborhood.iff that isn't in Backups. The next save "
         "of this neighborhood deletes it: if you want to keep it, copy it somewhere else."},
        {"no version at all",
         {{live, {}}},
         "neighborhood.iff is missing. There is no whole version of it beside it or in Backups."},
    };
    for (const auto& [what, state, said] : rows) {
        SCOPED_TRACE(what);
        start();
        change(state);
        std::string sentences;
        for (const LeftOver& each : findLeftOvers(game()))
            sentences += each.sentence + each.question;
        EXPECT_EQ(sentences, said.empty() ? "" : "Neighborhood 1: " + said);
    }
}

}  // namespace
