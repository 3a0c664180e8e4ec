// SPDX-License-Identifier: MIT
// The watch over the panel, on a bus that the test owns.
#include "platform/qt/statusitem/host/HostWatcher.h"

#include <gtest/gtest.h>

#include <deque>

namespace zephrine {
namespace {

using State = PanelReport::State;

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
    int changes = 0;
    HostWatcher watcher{bus, [this] { ++changes; }};

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

TEST_F(HostWatch, KnowsNothingBeforeTheBusHasAnswered) {
    watcher.start(true);
    EXPECT_EQ(watcher.state(), State::unknown);
}

TEST_F(HostWatch, KnowsThatThereIsNobodyWithoutABus) {
    watcher.start(false);
    EXPECT_EQ(watcher.state(), State::none);
    EXPECT_EQ(changes, 1);
}

TEST_F(HostWatch, TellsWhenNobodyCollectsItems) {
    watcher.start(true);
    watcher.watcherOwnerChanged("");
    EXPECT_EQ(watcher.state(), State::none);
    EXPECT_EQ(changes, 1);
}

TEST_F(HostWatch, FindsThePanelOnceItHasTakenTheItemAndShowsItems) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    EXPECT_EQ(bus.lastOwner, ":1.5");
    answerNext(bus.identifications, HostProcess{42, "waybar"});
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(watcher.state(), State::silent);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.state(), State::showing);
    ASSERT_TRUE(watcher.process());
    EXPECT_EQ(watcher.process()->command, "waybar");
}

TEST_F(HostWatch, KnowsTheProcessBeforeItRegistersTheItem) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    watcher.hostsChanged();
    EXPECT_TRUE(bus.hostQuestions.empty());
    answerNext(bus.identifications, HostProcess{42, "waybar"});
    EXPECT_TRUE(watcher.process());
    EXPECT_EQ(changes, 2) << "somebody, then who";
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

TEST_F(HostWatch, TellsOfAPanelThatLeavesItsWatcherBehind) {
    startWithPanel();
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, false);
    EXPECT_EQ(watcher.state(), State::silent);
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(watcher.state(), State::showing);
    EXPECT_TRUE(bus.registrations.empty()) << "the watcher has it";
}

TEST_F(HostWatch, TellsOfAWatcherThatNeverAnswers) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    EXPECT_EQ(watcher.state(), State::silent);
    EXPECT_FALSE(watcher.process());
}

TEST_F(HostWatch, TellsOfAWatcherThatRefusesTheItem) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "odd"});
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, false);
    EXPECT_EQ(watcher.state(), State::silent);
}

TEST_F(HostWatch, TellsOfAWatcherWithoutAPanelAndOfThePanelThatComesLate) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "kded5"});
    answerNext(bus.hostQuestions, false);
    EXPECT_EQ(watcher.state(), State::silent);
    watcher.hostsChanged();
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.state(), State::showing);
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
    EXPECT_EQ(watcher.state(), State::showing);
}

TEST_F(HostWatch, TellsOnceOfAPanelThatIsGone) {
    startWithPanel();
    const int before = changes;
    watcher.watcherOwnerChanged("");
    EXPECT_EQ(watcher.state(), State::none);
    EXPECT_FALSE(watcher.process());
    EXPECT_EQ(changes, before + 1);
}

TEST_F(HostWatch, FindsAPanelThatIsRestarted) {
    startWithPanel();
    watcher.watcherOwnerChanged("");
    watcher.watcherOwnerChanged(":1.9");
    EXPECT_EQ(bus.lastOwner, ":1.9");
    answerAll("waybar");
    EXPECT_EQ(watcher.state(), State::showing);
    EXPECT_EQ(watcher.process()->command, "waybar");
}

TEST_F(HostWatch, RegistersWithAWatcherThatReplacesAnother) {
    startWithPanel();
    watcher.watcherOwnerChanged(":1.9");
    answerAll("lxqt-panel");
    EXPECT_EQ(watcher.process()->command, "lxqt-panel");
    EXPECT_EQ(watcher.state(), State::showing);
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
    EXPECT_EQ(watcher.state(), State::silent);
}

TEST_F(HostWatch, TellsOfEveryChangeOfHandsEvenIfNobodyHasShownTheItem) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "kded5"});
    const int before = changes;
    watcher.watcherOwnerChanged(":1.9");
    EXPECT_FALSE(watcher.process());
    EXPECT_EQ(changes, before + 1);
}

TEST_F(HostWatch, KnowsThatThereIsNobodyWhenTheBusGoesAway) {
    startWithPanel();
    watcher.busLost();
    EXPECT_EQ(watcher.state(), State::none);
}

TEST_F(HostWatch, HoldsTheItemBackFromAPanelThatIsNotToHaveIt) {
    watcher.start(true);
    watcher.setOffered(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.hostsChanged();
    EXPECT_TRUE(bus.registrations.empty());
    EXPECT_TRUE(bus.hostQuestions.empty());
    EXPECT_EQ(watcher.process()->command, "panel-1-systray");
}

TEST_F(HostWatch, HoldsTheItemBackWhereThatIsDecidedWhileThePanelIsAsked) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.setOffered(false);
    answerNext(bus.hostQuestions, true);
    EXPECT_TRUE(bus.registrations.empty());
    watcher.setOffered(true);
    answerNext(bus.hostQuestions, true);
    EXPECT_EQ(bus.registrations.size(), 1U);
}

TEST_F(HostWatch, OffersTheItemThatItHeldBack) {
    watcher.start(true);
    watcher.setOffered(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.setOffered(true);
    answerNext(bus.hostQuestions, true);
    answerNext(bus.registrations, true);
    EXPECT_EQ(watcher.state(), State::showing);
}

TEST_F(HostWatch, OffersTheItemOnceToAPanelThatIsToHaveItAgain) {
    startWithPanel();
    watcher.setOffered(false);
    watcher.setOffered(true);
    EXPECT_TRUE(bus.registrations.empty());
    EXPECT_EQ(watcher.state(), State::showing);
}

TEST_F(HostWatch, OffersTheNextPanelWhatItHeldBackFromTheLast) {
    watcher.start(true);
    watcher.setOffered(false);
    watcher.watcherOwnerChanged(":1.5");
    answerNext(bus.identifications, HostProcess{42, "panel-1-systray"});
    watcher.watcherOwnerChanged("");
    watcher.setOffered(true);
    EXPECT_TRUE(bus.registrations.empty());
    watcher.watcherOwnerChanged(":1.9");
    answerAll("lxqt-panel");
    EXPECT_EQ(watcher.state(), State::showing);
}

TEST_F(HostWatch, AsksOnceWhenItIsToldTheSameOwnerTwice) {
    watcher.start(true);
    watcher.watcherOwnerChanged(":1.5");
    watcher.watcherOwnerChanged(":1.5");
    EXPECT_EQ(bus.identifications.size(), 1U);
}

}  // namespace
}  // namespace zephrine
