#include <unistd.h>

#include "start/readiness.h"
#include "tests/start/evening_game.h"

namespace {

// Root may write everywhere, so all is done as another user then.
TEST_F(EveningTest, WhatMayNotBeWrittenIsNoReadiness) {
    const std::string characters = "UserData/Characters", sim = characters + "/user00002.iff";
    const auto allow = [&](const std::string& name, int mode) { fs::permissions(files().path(name), fs::perms(mode)); };
    const std::tuple<std::function<void()>, std::string> rows[] = {
        {[&] { allow("UserData", 0555); }, "neighborhood.iff can't be saved: writing there isn't allowed."},
        {[&] { allow(characters, 0555); }, "Characters can be saved: writing there isn't allowed."},
        {[&] { allow(sim, 0444); }, "user00002.iff in "},
        {[&] { fs::resize_file(files().path(sim), fs::space(files().path(sim)).available / 5); },
         "The disk has no room for a save of Neighborhood 1: "},
    };
    for (const auto& [forbid, said] : rows) {
        start();
        for (const auto& entry : fs::recursive_directory_iterator(files().path()))
            EXPECT_EQ(chown(entry.path().c_str(), geteuid() == 0 ? 65'534 : geteuid(), getegid()), 0);
        EXPECT_TRUE(checkReadiness(game()).isReady());
        forbid();
        const uid_t before = geteuid();
        EXPECT_TRUE(before != 0 || seteuid(65'534) == 0);
        const Readiness readiness = checkReadiness(game());
        EXPECT_EQ(seteuid(before), 0);
        EXPECT_EQ(readiness.obstacles.size(), 1U);
        EXPECT_NE(readiness.text().find(said), std::string::npos) << readiness.text();
        allow("UserData", 0755);
        allow(characters, 0755);
    }
}

}  // namespace
