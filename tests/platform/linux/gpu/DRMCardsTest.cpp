// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/DRMCards.h"

#include <gtest/gtest.h>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::FakeTree;

TEST(DRMCards, TellsCardsFromConnectorsAndRenderNodes) {
    EXPECT_EQ(cardNumber("card0"), 0U);
    EXPECT_EQ(cardNumber("card12"), 12U);
    for (const char* name : {"card", "card0-DP-1", "renderD128", "version", "cardX", "card-1",
                             "card99999999999", "ttm"}) {
        EXPECT_EQ(cardNumber(name), std::nullopt) << name;
    }
}

TEST(DRMCards, FindsCardsByRisingNumberWithTheirDrivers) {
    const FakeTree sys;
    sys.link("class/drm/card10/device/driver", "../../bus/pci/drivers/nouveau");
    sys.link("class/drm/card2/device/driver", "../../bus/pci/drivers/amdgpu");
    sys.write("class/drm/card3/dev", "226:3\n");
    sys.write("class/drm/card2-HDMI-A-1/status", "connected\n");
    sys.write("class/drm/renderD128/dev", "226:128\n");
    const auto cards = findDRMCards(sys.root());
    ASSERT_TRUE(cards);
    ASSERT_EQ(cards->size(), 3U);
    EXPECT_EQ((*cards)[0].path, sys.path("class/drm/card2"));
    EXPECT_EQ((*cards)[0].driver, "amdgpu");
    EXPECT_EQ((*cards)[1].path, sys.path("class/drm/card3"));
    EXPECT_EQ((*cards)[1].driver, "");
    EXPECT_EQ((*cards)[2].driver, "nouveau");
}

TEST(DRMCards, IsEmptyOnAMachineWithoutGraphics) {
    const FakeTree sys;
    const auto cards = findDRMCards(sys.root());
    ASSERT_TRUE(cards);
    EXPECT_TRUE(cards->empty());
}

TEST(DRMCards, IsAbsentWhenTheLookUpFails) {
    const FakeTree sys;
    sys.write("class/drm", "not a folder");
    EXPECT_FALSE(findDRMCards(sys.root()));
}

}  // namespace
}  // namespace zephrine
