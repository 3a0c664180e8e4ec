// SPDX-License-Identifier: MIT
// A whole machine for a test: every service a fake with public state.
#pragma once

#include "fakes/FakeApplication.h"
#include "fakes/FakeGPURegistry.h"
#include "fakes/FakeHostCounters.h"
#include "fakes/FakeProcessTable.h"
#include "fakes/FakeServices.h"
#include "platform/Platform.h"

namespace zephrine {

class FakePlatform : public Platform {
public:
    FakeHostCounters host;
    FakeGPURegistry gpus;
    FakeProcessTable table;
    FakePreferenceStore store;
    FakeLoginItem login;
    FakeFormatting texts;
    FakeApplication application;
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
    Application* sharedApplication(std::string& whyNot) override {
        ++applicationsAskedFor;
        if (!hasDesktop) {
            whyNot = "there is no desktop";
            return nullptr;
        }
        return runsAlready ? nullptr : &application;
    }
};

}  // namespace zephrine
