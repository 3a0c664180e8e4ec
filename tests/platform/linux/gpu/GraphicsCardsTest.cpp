// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/GraphicsCards.h"

#include <gtest/gtest.h>

#include "platform/linux/gpu/FakeCards.h"

namespace zephrine {
namespace {

using testing::FakeCards;
using testing::FakeTree;

TEST(GraphicsCards, TellsCardsFromConnectorsAndRenderNodes) {
    EXPECT_EQ(cardNumber("card0"), 0U);
    EXPECT_EQ(cardNumber("card12"), 12U);
    for (const char* name : {"card", "card0-DP-1", "renderD128", "version", "cardX", "card-1",
                             "card99999999999", "ttm"}) {
        EXPECT_EQ(cardNumber(name), std::nullopt) << name;
    }
}

TEST(GraphicsCards, FindsCardsByRisingNumberWithTheirDriversAndAddresses) {
    const FakeCards cards;
    cards.add(10, "nouveau", "0000:0a:00.0");
    cards.add(2, "amdgpu", "0000:03:00.0");
    cards.tree.write("class/drm/card3/dev", "226:3\n");
    cards.tree.write("class/drm/card2-HDMI-A-1/status", "connected\n");
    cards.tree.write("class/drm/renderD128/dev", "226:128\n");
    const auto found = findGraphicsCards(cards.tree.root());
    ASSERT_TRUE(found);
    ASSERT_EQ(found->size(), 3U);
    EXPECT_EQ((*found)[0].path, cards.tree.path("class/drm/card2"));
    EXPECT_EQ((*found)[0].device, cards.tree.path("class/drm/card2/device"));
    EXPECT_EQ((*found)[0].driver, "amdgpu");
    EXPECT_EQ((*found)[0].address, "0000:03:00.0");
    EXPECT_EQ((*found)[1].path, cards.tree.path("class/drm/card3"));
    EXPECT_EQ((*found)[1].driver, "");
    EXPECT_EQ((*found)[2].driver, "nouveau");
}

TEST(GraphicsCards, FindsCardsThatOnlyNvidiasDriverKnowsAfterTheOthers) {
    const FakeCards cards;
    cards.addDevice("nvidia", "0000:41:00.0");
    cards.addDevice("nvidia", "0000:01:00.0");
    cards.add(0, "nvidia", "0000:21:00.0");
    cards.tree.write("bus/pci/drivers/nvidia/bind", "");
    const auto found = findGraphicsCards(cards.tree.root());
    ASSERT_TRUE(found);
    ASSERT_EQ(found->size(), 3U);
    EXPECT_EQ((*found)[0].address, "0000:21:00.0");
    EXPECT_EQ((*found)[1].address, "0000:01:00.0");
    EXPECT_EQ((*found)[1].driver, "nvidia");
    EXPECT_EQ((*found)[1].path, "");
    EXPECT_EQ((*found)[1].device, cards.tree.path("bus/pci/drivers/nvidia/0000:01:00.0"));
    EXPECT_EQ((*found)[2].address, "0000:41:00.0");
}

TEST(GraphicsCards, AreNoneOnAMachineWithoutGraphics) {
    const FakeTree sys;
    const auto found = findGraphicsCards(sys.root());
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->empty());
}

TEST(GraphicsCards, AreAbsentWhenTheLookUpFails) {
    const FakeTree sys;
    sys.write("class/drm", "not a folder");
    EXPECT_FALSE(findGraphicsCards(sys.root()));
}

}  // namespace
}  // namespace zephrine
