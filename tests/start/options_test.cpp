#include "start/options.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(OptionsTest, EachOptionIsTakenAndWhatIsWrongIsNamed) {
    const char* const all[] = {"start",        "--prepare", "--new-template", "--yes",      "--game",
                               "C:\\The Sims", "--help",    "--version",      "--editions", "later"};
    const Options options = optionsOf(std::size(all), all);
    EXPECT_EQ(options.fault, "");
    EXPECT_TRUE(options.prepareOnly && options.newTemplate && options.askNothing && options.help && options.version);
    EXPECT_EQ(options.game, "C:\\The Sims");
    EXPECT_EQ(options.editions, EditionsWish::later);

    const std::pair<const char*, const char*> rows[] = {
        {"--game=a=b", ""},
        {"--editions=ask", ""},
        {"--game", "--game needs a directory."},
        {"--game=", "--game needs a directory."},
        {"--editions=none", "--editions needs one of later, base and ask."},
        {"--gamer", "There is no option --gamer."},
        {"--yes=no", "There is no option --yes=no."},
        {"", "There is no option ."},
    };
    for (const auto& [argument, fault] : rows) {
        const char* const arguments[] = {"start", argument};
        EXPECT_EQ(optionsOf(2, arguments).fault, fault) << argument;
    }
}

}  // namespace
