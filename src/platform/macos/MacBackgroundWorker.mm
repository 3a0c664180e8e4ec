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

void MacBackgroundWorker::perform(std::function<void()> job) {
    const auto shared = std::make_shared<const std::function<void()>>(std::move(job));
    const auto stopped = stopped_;
    dispatch_async(queue_, ^{
      @autoreleasepool {
          if (!stopped->load()) {
              (*shared)();
          }
      }
    });
}

}  // namespace zephrine
