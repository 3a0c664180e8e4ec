// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/ClientLoad.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

ClientUsage client(std::string_view id, std::uint64_t busy, std::uint64_t total,
                   std::string_view engine = "render", std::uint64_t capacity = 1) {
    return {.id = id, .device = "", .engines = {{engine, busy, total, capacity}}};
}

TEST(ClientLoad, AddsUpWhatTheClientsHadOfAnEngine) {
    ClientLoad load;
    load.add(client("1", 0, 1000));
    load.add(client("2", 500, 1000));
    EXPECT_EQ(load.finishPass(), std::nullopt);
    load.add(client("1", 300, 2000));
    load.add(client("2", 700, 2000));
    EXPECT_EQ(load.finishPass(), 50.0);
}

TEST(ClientLoad, CountsAClientOnceHoweverManyDescriptorsLeadToIt) {
    ClientLoad load;
    load.add(client("1", 0, 1000));
    load.add(client("1", 5, 1010));
    load.finishPass();
    load.add(client("1", 300, 2000));
    load.add(client("1", 305, 2010));
    EXPECT_EQ(load.finishPass(), 30.0);
}

TEST(ClientLoad, GivesTheBusiestEngine) {
    ClientLoad load;
    load.add({.id = "1", .device = "", .engines = {{"render", 0, 1000}, {"video", 0, 1000}}});
    load.finishPass();
    load.add({.id = "1", .device = "", .engines = {{"render", 100, 2000}, {"video", 400, 2000}}});
    EXPECT_EQ(load.finishPass(), 40.0);
}

TEST(ClientLoad, SharesAGroupsWorkAmongItsEngines) {
    ClientLoad load;
    load.add(client("1", 0, 1000, "video", 2));
    load.finishPass();
    load.add(client("1", 1000, 2000, "video", 2));
    EXPECT_EQ(load.finishPass(), 50.0);
}

TEST(ClientLoad, MeasuresEachClientOverItsOwnTime) {
    ClientLoad load;
    load.add(client("1", 0, 1000));
    load.add(client("2", 0, 1'000'000));
    load.finishPass();
    load.add(client("1", 100, 2000));
    load.add(client("2", 300'000, 2'000'000));
    EXPECT_EQ(load.finishPass(), 40.0);
}

TEST(ClientLoad, CountsAClientFromItsSecondPassOn) {
    ClientLoad load;
    load.add(client("1", 0, 1000));
    load.finishPass();
    load.add(client("1", 100, 2000));
    load.add(client("2", 100'000, 2000));
    EXPECT_EQ(load.finishPass(), 10.0);
}

TEST(ClientLoad, ForgetsClientsThatAreGone) {
    ClientLoad load;
    load.add(client("1", 0, 1000));
    load.finishPass();
    EXPECT_EQ(load.finishPass(), std::nullopt);
    load.add(client("1", 500, 3000));
    EXPECT_EQ(load.finishPass(), std::nullopt);
}

TEST(ClientLoad, IsAbsentWhenTheSumCannotBeTrue) {
    ClientLoad load;
    load.add(client("1", 0, 1000));
    load.add(client("2", 0, 1000));
    load.finishPass();
    load.add(client("1", 900, 2000));
    load.add(client("2", 900, 2000));
    EXPECT_EQ(load.finishPass(), std::nullopt);
}

}  // namespace
}  // namespace zephrine
