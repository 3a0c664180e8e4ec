// SPDX-License-Identifier: MIT
// The watch over the panel, on a bus and a clock that the test owns.
#include "platform/qt/statusitem/HostWatcher.h"

#include <gtest/gtest.h>

#include <deque>

namespace zephrine {
namespace {

using Presence = HostWatcher::Presence;

/// Keeps every question until the test answers it.
class FakeHostBus : public HostBus {
public:
    std::deque<std::function<void(HostProcess)>> identifications;
    std::deque<std::function<void(bool)>> registrations;
    std::deque<std::function<void(bool)>> hostQuestions;
    QString lastOwner;

    void identify(const QString& owner, std::function<void(HostProcess)> answer) override {
        lastOwner = owner;
        identifications.push_back(std::move(answer));
    }
    void registerItem(const QString& owner, std::function<void(bool)> answer) override {
        lastOwner = owner;
        registrations.push_back(std::move(answer));
    }
    void askForHost(const QString& owner, std::function<void(bool)> answer) override {
        lastOwner = owner;
        hostQuestions.push_back(std::move(answer));
    }
};

class FakeDelay : public Delay {
public:
    std::function<void()> pending;
    int started = 0;

    void start(std::function<void()> action) override {
        pending = std::move(action);
        ++started;
    }
    void stop() override { pending = nullptr; }
    void elapse() { std::exchange(pending, nullptr)(); }
};

template <typename Answer, typename Value>
void answerNext(std::deque<std::function<void(Answer)>>& questions, Value value) {
    ASSERT_FALSE(questions.empty());
    const auto answer = questions.front();
    questions.pop_front();
    answer(value);
}

class HostWatch : public testing::Test {
protected:
    FakeHostBus bus;
    FakeDelay delay;
    int changes = 0;
    HostWatcher watcher{bus, delay, [this] { ++changes; }};

    void answerAll(const char* command = "panel-1-systray") {
        answerNext(bus.identifications, HostProcess{42, command});
        answerNext(bus.hostQuestions, true);
        answerNext(bus.registrations, true);
    }
    void startWithPanel() {
        watcher.start(true);
        watcher.watcherOwnerChanged(":1.5");
        answerAll();
    }
};

TEST_F(HostWatch, IsOfNoOpinionBeforeTheBusHasAnswered) {
    watcher.start(true);
    EXPECT_EQ(watcher.presence(), Presence::unknown);
}

TEST_F(HostWatch, MissesThePanelAtOnceWithoutABus) {
    watcher.start(false);
    EXPECT_EQ(watcher.presence(), Presence::absent);
    EXPECT_EQ(changes, 1);
}

TEST_F(HostWatch, MissesThePanelAtOnceWhenNobodyWatchesAtTheStart) {
    watcher.start(true);
    watcher.watcherOwnerChanged("");
    EXPECT_EQ(watcher.presence(), Presence::absent);
    EXPECT_FALSE(delay.pending);
}

TEST_F(HostWatch, FindsThePanelOnceItHasTakenTheItemAndShowsItems) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    EXPECT_EQ(bus.lastOwner, ":1.5");
    answerNext(bus.identifications, HostProcess{42, "waybar"});
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(watcher.presence(), Presence::unknown);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.presence(), Presence::present);
    ASSERT_TRUE(watcher.process());
    EXPECT_EQ(watcher.process()->command, "waybar");
    EXPECT_FALSE(delay.pending);
}

TEST_F(HostWatch, KnowsTheProcessBeforeItRegistersTheItem) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    watcher.hostsChanged();
    EXPECT_TRUE(bus.hostQuestions.empty());
    answerNext(bus.identifications, HostProcess{42, "waybar"});
    EXPECT_TRUE(watcher.process());
    EXPECT_EQ(changes, 1);
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(bus.registrations.size(), 1U);
}

TEST_F(HostWatch, RegistersTheItemOnceThereIsAPanelToShowIt) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "waybar"});
    answerNext(bus.hostQuestions, false);
    EXPECT_TRUE(bus.registrations.empty()) << "the panel may be about to look at what there is";
    watcher.hostsChanged();
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, true);
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(bus.registrations.size(), 1U) << "once";
}

TEST_F(HostWatch, MissesAPanelThatLeavesItsWatcherBehind) {
    startWithPanel();
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, false);
    EXPECT_EQ(watcher.presence(), Presence::present);
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(watcher.presence(), Presence::present);
    EXPECT_TRUE(bus.registrations.empty()) << "the watcher has it";
}

TEST_F(HostWatch, GivesUpOnAWatcherThatNeverAnswers) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    EXPECT_EQ(watcher.presence(), Presence::unknown);
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
}

TEST_F(HostWatch, GivesUpOnABusThatNeverAnswers) {
    watcher.start(true);
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
}

TEST_F(HostWatch, GivesUpOnAWatcherThatRefusesTheItem) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "odd"});
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, false);
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
}

TEST_F(HostWatch, GivesUpOnAWatcherWithoutAPanel) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "kded5"});
    answerNext(bus.hostQuestions, false);
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, TriesAgainWithAWatcherThatRefusedTheItemAndHasAnotherPanel) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "odd"});
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, false);
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, MissesAPanelThatIsGoneOnlyAfterTheDelay) {
    startWithPanel();
    watcher.watcherOwnerChanged("");
    EXPECT_EQ(watcher.presence(), Presence::present);
    EXPECT_FALSE(watcher.process());
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
}

TEST_F(HostWatch, DoesNotMissAPanelThatIsRestartedInTime) {
    startWithPanel();
    watcher.watcherOwnerChanged("");
    watcher.watcherOwnerChanged(":1.9");
    EXPECT_EQ(bus.lastOwner, ":1.9");
    answerAll("waybar");
    EXPECT_EQ(watcher.presence(), Presence::present);
    EXPECT_EQ(watcher.process()->command, "waybar");
    EXPECT_FALSE(delay.pending);
}

TEST_F(HostWatch, RegistersWithAWatcherThatReplacesAnother) {
    startWithPanel();
    watcher.watcherOwnerChanged(":1.9");
    answerAll("lxqt-panel");
    EXPECT_EQ(watcher.process()->command, "lxqt-panel");
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, DoesNotBelieveAnswersOfAFormerWatcher) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "old"});
    watcher.watcherOwnerChanged(":1.9");
    answerNext(bus.hostQuestions, true);  // the old one's
    EXPECT_TRUE(bus.registrations.empty());
    answerNext(bus.identifications, HostProcess{43, "new"});
    EXPECT_EQ(watcher.process()->command, "new");
    EXPECT_EQ(watcher.presence(), Presence::unknown);
}

TEST_F(HostWatch, WaitsFromTheFirstLossOnHoweverOftenThePanelChanges) {
    startWithPanel();
    const int before = delay.started;
    watcher.watcherOwnerChanged("");
    watcher.watcherOwnerChanged(":1.9");
    watcher.watcherOwnerChanged("");
    EXPECT_EQ(delay.started, before + 1);
}

TEST_F(HostWatch, FindsThePanelAgainAfterItMissedOne) {
    startWithPanel();
    watcher.watcherOwnerChanged("");
    delay.elapse();
    watcher.watcherOwnerChanged(":1.9");
    EXPECT_EQ(watcher.presence(), Presence::absent);
    answerAll();
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, MissesThePanelWhenTheBusGoesAway) {
    startWithPanel();
    watcher.busLost();
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
}

TEST_F(HostWatch, HoldsTheItemBackFromAPanelThatIsNotToHaveIt) {
    watcher.start(true);
    watcher.setWanted(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.hostsChanged();
    EXPECT_TRUE(bus.registrations.empty());
    EXPECT_EQ(watcher.presence(), Presence::absent);
    EXPECT_EQ(watcher.process()->command, "panel-1-systray");
    EXPECT_FALSE(delay.pending);
}

TEST_F(HostWatch, HoldsTheItemBackWhereThatIsDecidedWhileThePanelIsAsked) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.setWanted(false);
    answerNext(bus.hostQuestions, true);
    EXPECT_TRUE(bus.registrations.empty());
    EXPECT_EQ(watcher.presence(), Presence::absent);
    watcher.setWanted(true);
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(bus.registrations.size(), 1U);
}

TEST_F(HostWatch, OffersTheItemThatItHeldBack) {
    watcher.start(true);
    watcher.setWanted(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.setWanted(true);
    EXPECT_EQ(watcher.presence(), Presence::unknown);
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, GivesUpOnAPanelThatIsSilentWhenOfferedWhatWasHeldBack) {
    watcher.start(true);
    watcher.setWanted(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.setWanted(true);
    delay.elapse();
    EXPECT_EQ(watcher.presence(), Presence::absent);
}

TEST_F(HostWatch, OffersTheItemOnceToAPanelThatIsToHaveItAgain) {
    startWithPanel();
    watcher.setWanted(false);
    watcher.setWanted(true);
    EXPECT_TRUE(bus.registrations.empty());
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, OffersTheNextPanelWhatItHeldBackFromTheLast) {
    watcher.start(true);
    watcher.setWanted(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.watcherOwnerChanged("");
    watcher.setWanted(true);
    EXPECT_TRUE(bus.registrations.empty());
    watcher.watcherOwnerChanged(":1.9");
    answerAll("lxqt-panel");
    EXPECT_EQ(watcher.presence(), Presence::present);
}

TEST_F(HostWatch, AsksOnceWhenItIsToldTheSameOwnerTwice) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    watcher.watcherOwnerChanged(":1.5");
    EXPECT_EQ(bus.identifications.size(), 1U);
}

}  // namespace
}  // namespace zephrine
