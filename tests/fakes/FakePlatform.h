// SPDX-License-Identifier: MIT
// A whole machine for a test: every service a fake with public state.
#pragma once

#include "fakes/CallLog.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeGPURegistry.h"
#include "fakes/FakeHostCounters.h"
#include "fakes/FakeProcessTable.h"
#include "fakes/FakeServices.h"
#include "platform/Platform.h"

namespace zephrine {

class FakePlatform : public Platform {
public:
    CallLog calls;  ///< of everything below
    FakeHostCounters host{calls};
    FakeGPURegistry gpus{calls};
    FakeProcessTable table{calls};
    FakePreferenceStore store{calls};
    FakeLoginItem login{calls};
    FakeFormatting texts;
    FakeApplication application{calls};
    bool hasDesktop = true;
    bool runsAlready = false;
    int applicationsAskedFor = 0;

    HostCounters& hostCounters() override { return host; }
    GPURegistry& gpuRegistry() override { return gpus; }
    std::shared_ptr<ProcessTable> processTable() override {
        return {std::shared_ptr<void>(), &table};  // the test's own
    }
    PreferenceStore& preferenceStore() override { return store; }
    LoginItem& loginItem() override { return login; }
    Formatting& formatting() override { return texts; }
    std::variant<Application*, NoDesktop, RunsAlready> sharedApplication() override {
        ++applicationsAskedFor;
        if (!hasDesktop) {
            return NoDesktop{"there is no desktop"};
        }
        if (runsAlready) {
            return RunsAlready{};
        }
        return &application;
    }
};

}  // namespace zephrine
