#include "prepare/source_choice.h"

#include <gtest/gtest.h>

#include "tests/prepare/character_chunks.h"

namespace {

TEST(SourceChoiceTest, TheFirstFileOfTheMostFrequentBehaviourIsChosen) {
    EXPECT_EQ(chooseSource({}), nullptr);
    const SampleCharacter newer{.behaviour = BehaviourSet::newer};
    SampleCharacter other = newer;
    other.guid = 7;
    other.name = "Ann";
    other.freeRoom = true;
    std::vector<TemplateSource> sources = {{"old", chunksOf({})}, {"new", chunksOf(newer)}, {"Ann", chunksOf(other)}};
    EXPECT_EQ(chooseSource(sources)->path, "new");
    std::swap(sources[2].chunks[0], sources[2].chunks[7]);
    EXPECT_EQ(chooseSource(sources)->path, "new") << "in another order";
    chunkIn(sources[2].chunks, "OBJD", 128).content[4] ^= 1;
    EXPECT_EQ(chooseSource(sources)->path, "old") << "three behaviours of one file each";
}

}  // namespace
