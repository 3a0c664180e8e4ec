// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/FdinfoSource.h"

#include <gtest/gtest.h>

#include "platform/linux/gpu/FakeCards.h"
#include "platform/linux/gpu/FakeClients.h"

namespace zephrine {
namespace {

using testing::FakeCards;
using testing::FakeClients;

class FdinfoSourceTest : public ::testing::Test {
protected:
    static constexpr const char* kCard = "0000:00:02.0";
    static constexpr const char* kOtherCard = "0000:03:00.0";
    static constexpr std::uint64_t kMillisecond = 1'000'000;

    FdinfoSource makeSource() {
        cards.add(0, "i915", kCard);
        cards.add(1, "i915", kOtherCard);
        const auto found = findGraphicsCards(cards.tree.root()).value();
        return {clients.tree.root(), found.at(0), [this] { return now; }};
    }

    FakeCards cards;
    FakeClients clients;
    double now = 100;
    FdinfoSource source = makeSource();
};

TEST_F(FdinfoSourceTest, AddsUpTheClientsOfTheCard) {
    clients.open(7, 4, "/dev/dri/renderD128", FakeClients::client("1", kCard, 0));
    clients.open(8, 4, "/dev/dri/card0", FakeClients::client("2", kCard, 50 * kMillisecond));
    EXPECT_EQ(source.utilization(), std::nullopt);
    now += 2;
    clients.tell(7, 4, FakeClients::client("1", kCard, 500 * kMillisecond));
    clients.tell(8, 4, FakeClients::client("2", kCard, 150 * kMillisecond));
    EXPECT_EQ(source.utilization(), 30.0);
}

TEST_F(FdinfoSourceTest, LeavesOutTheClientsOfOtherCards) {
    clients.open(7, 4, "/dev/dri/renderD128", FakeClients::client("1", kCard, 0));
    clients.open(7, 5, "/dev/dri/renderD129", FakeClients::client("1", kOtherCard, 0));
    clients.open(7, 6, "/dev/dri/card0", FakeClients::client("9", kOtherCard, 0));
    source.utilization();
    now += 1;
    clients.tell(7, 4, FakeClients::client("1", kCard, 100 * kMillisecond));
    clients.tell(7, 5, FakeClients::client("1", kOtherCard, 900 * kMillisecond));
    clients.tell(7, 6, FakeClients::client("9", kOtherCard, 900 * kMillisecond));
    EXPECT_EQ(source.utilization(), 10.0);
}

TEST_F(FdinfoSourceTest, CountsAClientOnceThatSeveralProcessesShare) {
    clients.open(7, 4, "/dev/dri/renderD128", FakeClients::client("1", kCard, 0));
    clients.open(8, 9, "/dev/dri/renderD128", FakeClients::client("1", kCard, 0));
    source.utilization();
    now += 1;
    clients.tell(7, 4, FakeClients::client("1", kCard, 400 * kMillisecond));
    clients.tell(8, 9, FakeClients::client("1", kCard, 400 * kMillisecond));
    EXPECT_EQ(source.utilization(), 40.0);
}

TEST_F(FdinfoSourceTest, IsAbsentWhenNoClientIsToBeSeen) {
    EXPECT_EQ(source.utilization(), std::nullopt);
    now += 1;
    EXPECT_EQ(source.utilization(), std::nullopt);
}

TEST_F(FdinfoSourceTest, IsAbsentWhenTheDriverCountsNoWork) {
    const std::string silent = "drm-driver:\tpanfrost\ndrm-client-id:\t1\n";
    clients.open(7, 4, "/dev/dri/card0", silent);
    source.utilization();
    now += 1;
    EXPECT_EQ(source.utilization(), std::nullopt);
}

}  // namespace
}  // namespace zephrine
