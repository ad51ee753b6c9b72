#include <gtest/gtest.h>

#include <string>

#include "sequences/sequence.h"

/// A few lives of each kind, the same ones each time; scripts/fuzz lives through others.
namespace vantor::sequences_test {
namespace {

constexpr std::uint64_t firstSeed = 20260203;
constexpr std::uint64_t lives = 50;

class Sequences : public testing::TestWithParam<SequenceKind> {};

TEST_P(Sequences, AReaderNeverDiffersFromWhatTheWholeHistorySays) {
    const auto failure = liveThrough(GetParam(), firstSeed, lives * GetParam().stepsOfALife);
    EXPECT_FALSE(failure) << "seed " << failure->seed << ", step " << failure->step << ":\n"
                          << failure->difference;
}

INSTANTIATE_TEST_SUITE_P(Of, Sequences,
                         testing::ValuesIn(sequenceKinds().begin(), sequenceKinds().end()),
                         [](const auto& tested) { return std::string(tested.param.name); });

}  // namespace
}  // namespace vantor::sequences_test
