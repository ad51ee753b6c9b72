#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/macos/fake_darwin.h"

namespace vantor {

/// A machine by script; whatever was handed out has to be given back in the end, and nothing be
/// done that must not be.
class FakeDarwinTest : public testing::Test {
  protected:
    using Ref = FakeObject::Ref;

    void TearDown() override { EXPECT_THAT(darwin.wrongs(), testing::IsEmpty()); }

    /// One object of each kind, by turns, without the one kind.
    std::vector<Ref> objectsOtherThan(FakeObject::Kind kind);

    /// Runs `use` with everything there, then without each function and constant of each table in
    /// turn. Whatever it reads, it may not call what is missing, nor lose anything.
    static void withEachFunctionMissing(
        const std::function<void(std::shared_ptr<const Frameworks>)>& use);

    /// Runs `use` with each of the calls that can fail failing in turn, and checks after each run
    /// that everything has been given back. At least `atLeast` calls can fail.
    void withEachCallFailing(int atLeast,
                             const std::function<void(std::shared_ptr<const Frameworks>)>& use);

    /// Reads 10,000 times, and looks from time to time whether everything was given back.
    void manyTimes(const std::function<void()>& read, std::size_t keptBetween = 0);

    FakeDarwin darwin;
};

}  // namespace vantor
