// SPDX-License-Identifier: MIT
#include "platform/linux/login/DesktopEntry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/Captured.h"
#include "platform/linux/login/DesktopExec.h"

namespace zephrine {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

DesktopEntry entry(const std::string& lines) {
    return DesktopEntry::parse("[Desktop Entry]\n" + lines).value();
}

TEST(DesktopEntry, ReadsOnlyItsOwnGroup) {
    const auto parsed = DesktopEntry::parse(testing::captured("autostart/commented.desktop"));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->string("Type"), "Application");
    EXPECT_EQ(parsed->string("Name[de]"), "Zephrine Systemmonitor");
    EXPECT_FALSE(parsed->boolean("Hidden"));
    EXPECT_EQ(programOfExec(parsed->string("Exec").value()), "/opt/my \"tools\"/zephrine");
}

TEST(DesktopEntry, ReadsLinesThatEndAsOnWindows) {
    const auto parsed = DesktopEntry::parse(testing::captured("autostart/mate-off-crlf.desktop"));
    ASSERT_TRUE(parsed);
    EXPECT_EQ(parsed->boolean("X-MATE-Autostart-enabled"), false);
}

TEST(DesktopEntry, IsNoneWhenAnyLineIsMalformed) {
    for (const char* const file : {"no-group", "truncated", "nul-bytes", "open-group"}) {
        const auto text = testing::captured(std::string("autostart/hostile-") + file + ".desktop");
        const auto parsed = DesktopEntry::parse(text);
        // A cut-off value is a value: only what it says is worthless.
        EXPECT_FALSE(parsed && parsed->boolean("Hidden")) << file;
        EXPECT_EQ(parsed.has_value(), std::string(file) == "truncated") << file;
    }
    EXPECT_FALSE(DesktopEntry::parse("[Desktop Entry]\nHidden\n"));
    EXPECT_FALSE(DesktopEntry::parse("[Desktop Entry]\n=x\n"));
    EXPECT_FALSE(DesktopEntry::parse("[]\n"));
    EXPECT_FALSE(DesktopEntry::parse("[a[b]\n"));
}

TEST(DesktopEntry, MayBeEmpty) {
    ASSERT_TRUE(DesktopEntry::parse(""));
    EXPECT_THAT(DesktopEntry::parse("# nothing\n\n[Other]\nHidden=true")->keys(), IsEmpty());
}

TEST(DesktopEntry, TakesTheLastOfEqualKeysAndTheLastLineWithoutAnEnd) {
    EXPECT_EQ(entry("Hidden=true\nHidden=false").boolean("Hidden"), false);
}

TEST(DesktopEntry, ResolvesEscapesOfStrings) {
    EXPECT_EQ(entry(R"(Exec=\sa\tb\nc\rd\\e)").string("Exec"), " a\tb\nc\rd\\e");
    EXPECT_FALSE(entry(R"(Exec=a\q)").string("Exec"));
    EXPECT_FALSE(entry("Exec=a\\").string("Exec"));
    EXPECT_FALSE(entry("").string("Exec"));
    EXPECT_EQ(entry("Exec=").string("Exec"), "");
}

TEST(DesktopEntry, HasNoStringThatIsNotUTF8) {
    EXPECT_FALSE(entry("Exec=/opt/\xff/zephrine").string("Exec"));
    EXPECT_FALSE(entry("OnlyShowIn=GNOME;\xff;").list("OnlyShowIn"));
}

TEST(DesktopEntry, KnowsTwoWordsForEachBoolean) {
    EXPECT_EQ(entry("Hidden=true").boolean("Hidden"), true);
    EXPECT_EQ(entry("Hidden = 1 ").boolean("Hidden"), true);
    EXPECT_EQ(entry("Hidden=0").boolean("Hidden"), false);
    for (const char* const word : {"True", "yes", "", "falsee", "2"}) {
        EXPECT_FALSE(entry(std::string("Hidden=") + word).boolean("Hidden")) << word;
    }
}

TEST(DesktopEntry, SplitsListsAtSemicolons) {
    EXPECT_THAT(entry("OnlyShowIn=GNOME;KDE;").list("OnlyShowIn").value(),
                ElementsAre("GNOME", "KDE"));
    EXPECT_THAT(entry("OnlyShowIn=GNOME;X\\;Y\\s").list("OnlyShowIn").value(),
                ElementsAre("GNOME", "X;Y "));
    EXPECT_THAT(entry("OnlyShowIn=").list("OnlyShowIn").value(), IsEmpty());
    EXPECT_FALSE(entry("").list("OnlyShowIn"));
}

TEST(ProgramOfExec, IsTheFirstArgument) {
    EXPECT_EQ(programOfExec("zephrine"), "zephrine");
    EXPECT_EQ(programOfExec("  /usr/bin/zephrine --show-dashboard %U"), "/usr/bin/zephrine");
    EXPECT_EQ(programOfExec("/opt/100%%/zephrine"), "/opt/100%/zephrine");
}

TEST(ProgramOfExec, LosesItsQuotes) {
    EXPECT_EQ(programOfExec(R"("/opt/my tools/zephrine" -x)"), "/opt/my tools/zephrine");
    EXPECT_EQ(programOfExec(R"("/opt/\"a\" \$b \`c\` \\d")"), R"(/opt/"a" $b `c` \d)");
    EXPECT_EQ(programOfExec(R"(/opt/my\ tools/zephrine)"), "/opt/my tools/zephrine");
    EXPECT_EQ(programOfExec("'/opt/my tools/zephrine'"), "/opt/my tools/zephrine");
}

TEST(ProgramOfExec, IsNotRunThroughAShell) {
    for (const char* const exec : {"$HOME/x", "a;b", "`x`", "a&", "~/x", "x*"}) {
        EXPECT_EQ(programOfExec(exec), exec);
    }
}

TEST(ProgramOfExec, IsAbsentWhenTheQuotingIsWrongOrThereIsNone) {
    for (const char* const exec :
         {"", "   ", "\"\"", "\"/opt/x", "x 'y", "x\\", "#x", "%U", "x%", "/opt/%U/x"}) {
        EXPECT_FALSE(programOfExec(exec)) << exec;
    }
}

}  // namespace
}  // namespace zephrine
