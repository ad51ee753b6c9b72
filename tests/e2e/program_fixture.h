#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "e2e/desktop.h"
#include "e2e/running_program.h"

namespace vantor {

/// A virtual desktop, and the program on it once it is started.
class ProgramOnADesktop : public testing::Test {
  protected:
    static constexpr QSize screen{1366, 900};

    void SetUp() override { ASSERT_TRUE(desktop_.isUp()) << "the virtual desktop did not start"; }

    /// Until the program has drawn live figures and has the keyboard.
    void start() {
        program_.emplace(desktop_);
        ASSERT_TRUE(program_->waitForLiveData());
        ASSERT_TRUE(eventually([this] { return program_->isActive(); }));
    }

    Desktop desktop_{screen};
    std::optional<RunningProgram> program_;
};

}  // namespace vantor
