#pragma once

#include <dispatch/dispatch.h>

#include <string>
#include <vector>

namespace vantor {

/// What the dispatcher of the stand-in was asked so far in this program.
namespace fake_dispatcher {

struct Asked {
    int created = 0;
    int released = 0;
    int ended = 0;  ///< queues whose finalizer has run
    std::vector<std::string> labels;
    dispatch_qos_class_t quality{};
};
Asked asked();

}  // namespace fake_dispatcher

}  // namespace vantor
