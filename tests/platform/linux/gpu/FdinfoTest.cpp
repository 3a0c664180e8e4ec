// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/Fdinfo.h"

#include <gtest/gtest.h>

#include <string>

namespace zephrine {
namespace {

using Engines = std::vector<EngineUsage>;

TEST(Fdinfo, ReadsEnginesThatCountNanoseconds) {
    const auto client = parseFdinfo(
        "pos:\t0\nflags:\t02100002\nmnt_id:\t26\nino:\t685\n"
        "drm-driver:\ti915\ndrm-pdev:\t0000:00:02.0\ndrm-client-id:\t7\n"
        "drm-engine-render:\t9288864723 ns\n"
        "drm-engine-video:\t15 ns\ndrm-engine-capacity-video:\t2\n"
        "drm-total-system0:\t61696 KiB\n",
        5000);
    ASSERT_TRUE(client);
    EXPECT_EQ(client->id, "7");
    EXPECT_EQ(client->device, "0000:00:02.0");
    EXPECT_EQ(client->engines,
              (Engines{{"render", 9'288'864'723, 5000, 1}, {"video", 15, 5000, 2}}));
}

TEST(Fdinfo, ReadsEnginesThatCountCyclesOutOfATotal) {
    const auto client = parseFdinfo(
        "drm-driver:\txe\ndrm-client-id:\t3\ndrm-pdev:\t0000:03:00.0\n"
        "drm-cycles-rcs:\t28257900\ndrm-total-cycles-rcs:\t7655183225\n"
        "drm-cycles-vcs:\t0\ndrm-total-cycles-vcs:\t7655183225\ndrm-engine-capacity-vcs:\t2\n",
        5000);
    ASSERT_TRUE(client);
    EXPECT_EQ(client->engines,
              (Engines{{"rcs", 28'257'900, 7'655'183'225, 1}, {"vcs", 0, 7'655'183'225, 2}}));
}

TEST(Fdinfo, PrefersNanosecondsWhereADriverCountsBoth) {
    const auto client = parseFdinfo(
        "drm-driver:\tmsm\ndrm-client-id:\t7\ndrm-engine-gpu:\t1734371319 ns\n"
        "drm-cycles-gpu:\t1153645024\ndrm-maxfreq-gpu:\t800000000 Hz\n",
        5000);
    ASSERT_TRUE(client);
    EXPECT_EQ(client->device, "");
    EXPECT_EQ(client->engines, (Engines{{"gpu", 1'734'371'319, 5000, 1}}));
}

TEST(Fdinfo, LeavesOutCyclesThatNothingComparesWith) {
    const auto client = parseFdinfo(
        "drm-driver:\tpanthor\ndrm-client-id:\t7\ndrm-cycles-panthor:\t5\n"
        "drm-maxfreq-panthor:\t1000 Hz\n",
        5000);
    ASSERT_TRUE(client);
    EXPECT_TRUE(client->engines.empty());
}

TEST(Fdinfo, IsAbsentForOtherFilesAndClientsWithoutIdentity) {
    EXPECT_FALSE(parseFdinfo("", 5000));
    EXPECT_FALSE(parseFdinfo("pos:\t0\nflags:\t02\n", 5000));
    EXPECT_FALSE(parseFdinfo("drm-driver:\tfoo\ndrm-engine-gfx:\t12 ns\n", 5000));
    EXPECT_FALSE(parseFdinfo("drm-client-id:\t", 5000));
    EXPECT_FALSE(parseFdinfo("drm-client-id:\t12", 5000));
}

TEST(Fdinfo, LeavesOutLinesThatMakeNoSense) {
    const auto client = parseFdinfo(
        "drm-client-id: 4\n:\n\ndrm-engine-a\ndrm-engine-b:\t-5 ns\ndrm-engine-c:\tx ns\n"
        "drm-engine-d:\t99999999999999999999 ns\ndrm-engine-e:\t3 ns\n"
        "drm-engine-capacity-e:\t0\ndrm-engine-cut:\t12",
        5000);
    ASSERT_TRUE(client);
    EXPECT_EQ(client->engines, (Engines{{"e", 3, 5000, 1}}));
}

}  // namespace
}  // namespace zephrine
