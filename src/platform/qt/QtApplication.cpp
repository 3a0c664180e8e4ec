// SPDX-License-Identifier: MIT
// Puts the parts together. Qt is set up to look the same on every desktop and to load nothing of
// the desktop's own: its GTK theme alone costs 14 MB and doubles the time to start.
#include "platform/qt/QtApplication.h"

#include <QDBusConnection>
#include <QStyleFactory>
#include <QToolTip>
#include <algorithm>
#include <clocale>
#include <utility>

#include "platform/qt/DesktopConnection.h"
#include "platform/qt/drawing/AppIcon.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/drawing/Palette.h"
#include "platform/qt/widgets/Accessibility.h"

namespace zephrine {

namespace {

/// What Qt has to know before its application object exists. Returns its argument, so that a
/// constructor can do this in time.
int& prepared(int& argumentCount) {
    QApplication::setDesktopSettingsAware(false);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    return argumentCount;
}

/// Asks the other instance over a connection of its own: the one that is shared by all of Qt wants
/// an application object.
bool isTakenOver(const InstancePlace& place, const HandedOptions& options) {
    const QString name = QStringLiteral("start");
    const bool done = handOver(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name),
                               place, options) == Handover::done;
    QDBusConnection::disconnectFromBus(name);
    return done;
}

bool isAnyWindowVisible() {
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const auto* window) { return window->isVisible(); });
}

void setUpLooks() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    for (const auto effect :
         {Qt::UI_General, Qt::UI_AnimateMenu, Qt::UI_FadeMenu, Qt::UI_AnimateCombo,
          Qt::UI_AnimateTooltip, Qt::UI_FadeTooltip, Qt::UI_AnimateToolBox}) {
        QApplication::setEffectEnabled(effect, false);
    }
    QApplication::setFont(makeFont(Font{}));
    QToolTip::setFont(makeFont(Font{.size = 12}));
    QApplication::setWindowIcon(builtInIcon(QStringLiteral("AppIcon")));
}

}  // namespace

std::variant<std::unique_ptr<QtApplication>, NoDesktop, RunsAlready> QtApplication::connect(
    const std::vector<std::string>& arguments, PreferenceStore& preferences) {
    auto desktop = findDesktop();
    if (auto* none = std::get_if<NoDesktop>(&desktop)) {
        return std::move(*none);
    }
    const QByteArray platform = std::get<QByteArray>(desktop);
    prepareEnvironment(platform);
    // The signals first: they wait in every thread that is made later.
    Start start{.termination = std::make_unique<TerminationSignals>(),
                .program = arguments.empty() ? "zephrine" : arguments.front(),
                .options = launchOptionsAmong(arguments),
                .place = InstancePlace::current(platform.toStdString())};
    if (isTakenOver(start.place, start.options)) {
        return RunsAlready{};
    }
    return std::unique_ptr<QtApplication>(new QtApplication(std::move(start), preferences));
}

QtApplication::QtApplication(Start start, PreferenceStore& preferences)
    : start_(std::move(start)),
      arguments_{start_.program.data(), nullptr},  // Qt understands options that are not ours
      application_(prepared(argumentCount_), arguments_.data()),
      theme_([this](const DesktopLook& look) { appearance_.setFallback(look); }),
      resumeSignal_([this] { sleepWatcher_.check(); }),
      logindSignal_(QDBusConnection::systemBus(), [this] { sleepWatcher_.hearOfWakeUp(); }),
      runLoop_([this] { sleepWatcher_.check(); }),
      widgets_(appearance_),
      windows_(appearance_, runLoop_, clickGuard_),
      statusBar_({.clickGuard = clickGuard_,
                  .systemAppearance = appearance_,
                  .preferences = preferences,
                  .openSettings = [this] { openedAgain(LaunchOption::showSettings); },
                  .quit = [this] { terminate(); }}),
      instance_(QDBusConnection::sessionBus(), start_.place,
                [this](std::optional<LaunchOption> option) { openedAgain(option); }) {
    // Qt has taken the user's locale over for the whole process; numbers in texts that the program
    // formats itself keep their decimal point.
    std::setlocale(LC_NUMERIC, "C");
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(QStringLiteral("zephrine"));
    QApplication::setDesktopFileName(QStringLiteral("zephrine"));
    setUpLooks();
    installAccessibility();
    start_.termination->deliverTo([this] { terminate(); });
    // Ahead of those who refresh because of a wake-up: the next refresh is to see a whole interval.
    sleepWatcher_.observe([this] { runLoop_.restartTimers(); });
    const auto applyPalette = [this] {
        const QPalette palette = makePalette(appearance_.current());
        QApplication::setPalette(palette);
        QToolTip::setPalette(palette);
    };
    applyPalette();
    appearance_.observe(applyPalette);
    theme_.follow();
    appearance_.follow(QDBusConnection::sessionBus());
}

void QtApplication::run() {
    // Claiming may take a while, in which the end may be asked for as well.
    if (!terminated_ && instance_.claim(start_.options) && !terminated_) {
        runLoop_.performOnMain([this] { launched(); });
        QApplication::exec();
    }
    terminated_ = false;
}

void QtApplication::launched() {
    if (delegate_ != nullptr) {
        delegate_->applicationDidFinishLaunching();
    }
}

void QtApplication::terminate() {
    terminated_ = true;
    QApplication::exit();
}

void QtApplication::openedAgain(std::optional<LaunchOption> option) {
    // Later: whoever asks waits for an answer, and before the launch there is nothing to open.
    runLoop_.performOnMain([this, option] {
        if (delegate_ != nullptr && option) {
            delegate_->performLaunchOption(*option);
        } else if (delegate_ != nullptr) {
            delegate_->applicationShouldHandleReopen(isAnyWindowVisible());
        }
    });
}

void QtApplication::observeDidWake(std::function<void()> handler) {
    sleepWatcher_.observe(std::move(handler));
}

void QtApplication::observeThemeChanged(std::function<void()> handler) {
    appearance_.observe(std::move(handler));
}

}  // namespace zephrine
