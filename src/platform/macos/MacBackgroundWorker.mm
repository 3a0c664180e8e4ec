// SPDX-License-Identifier: MIT
#include "platform/macos/MacBackgroundWorker.h"

#include <utility>

namespace zephrine {

MacBackgroundWorker::MacBackgroundWorker()
    : queue_(dispatch_queue_create(
          "org.zephrine.Zephrine.worker",
          dispatch_queue_attr_make_with_qos_class(DISPATCH_QUEUE_SERIAL, QOS_CLASS_UTILITY, 0))),
      stopped_(std::make_shared<std::atomic<bool>>(false)) {}

MacBackgroundWorker::~MacBackgroundWorker() {
    stopped_->store(true);
    dispatch_sync(queue_, ^{
                  });
}

void MacBackgroundWorker::perform(Job job, std::function<void()> /*givenUp*/) {
    // Shared, because a block copies what it captures, and jobs and completions may carry a lot.
    const auto shared = std::make_shared<Job>(std::move(job));
    const auto stopped = stopped_;
    dispatch_async(queue_, ^{
      @autoreleasepool {
          if (stopped->load()) {
              return;
          }
          const auto completion = std::make_shared<const Completion>((*shared)());
          *shared = nullptr;  // what it held is free before anybody can know that it ended
          dispatch_async(dispatch_get_main_queue(), ^{
            @autoreleasepool {
                if (!stopped->load() && *completion) {
                    (*completion)();
                }
            }
          });
      }
    });
}

}  // namespace zephrine
