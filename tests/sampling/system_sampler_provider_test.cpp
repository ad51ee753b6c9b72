#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string_view>
#include <vector>

#include "sampling/sampler_world.h"
#include "support/named_row.h"

/// What holds for each provider.
namespace vantor::system_sampler_provider_test {
namespace {

using namespace std::chrono_literals;

struct ProviderRow : NamedRow {
    std::size_t index;
};

class EachProvider : public testing::TestWithParam<ProviderRow> {
  protected:
    const std::size_t provider = GetParam().index;
    SamplerWorld world;
};

TEST_P(EachProvider, WorksOnItsOwnQueueBehindItsOwnGate) {
    world.request(provider, 1, false);
    for (std::size_t other = 0; other < world.gates.size(); ++other) {
        const std::size_t expected = other == provider ? 1 : 0;
        EXPECT_EQ(world.waiting(other), expected) << world.label(other);
        EXPECT_EQ(world.gates[other]->outstandingRuns(), static_cast<int>(expected));
    }
}

TEST_P(EachProvider, AnswersOnItsQueueOnce) {
    world.request(provider, 1, false);
    EXPECT_EQ(world.answers, 0);
    EXPECT_TRUE(world.queues.runNext(world.label(provider)));
    EXPECT_EQ(world.answers, 1);
    EXPECT_EQ(world.gates[provider]->outstandingRuns(), 0);
}

TEST_P(EachProvider, NeverAnswersARefusedRequest) {
    world.request(provider, 1, false);
    world.request(provider, 1, false);  // one is in flight
    world.queues.runWaiting();
    world.clock->wind(999ms);
    world.request(provider, 1, false);  // the interval is not over
    EXPECT_EQ(world.queues.runWaiting(), 0u);
    EXPECT_EQ(world.answers, 1);
    world.clock->wind(1ms);
    world.request(provider, 1, false);
    world.queues.runWaiting();
    EXPECT_EQ(world.answers, 2);
}

TEST_P(EachProvider, QueuesAtMostOneForcedRunBehindAnother) {
    for (int i = 0; i < 100; ++i)
        world.request(provider, 1, true);
    EXPECT_EQ(world.waiting(provider), 2u);
    world.queues.runWaiting();
    EXPECT_EQ(world.answers, 2);
    EXPECT_EQ(world.gates[provider]->outstandingRuns(), 0);
}

TEST_P(EachProvider, EndsItsWaitingRunsWithoutAnAnswerOnceTheSamplerIsGone) {
    world.request(provider, 1, true);
    world.request(provider, 1, true);
    world.sampler.reset();
    EXPECT_EQ(world.gates[provider]->outstandingRuns(), 2);
    EXPECT_EQ(world.queues.runWaiting(), 2u);
    EXPECT_EQ(world.answers, 0);
    EXPECT_EQ(world.gates[provider]->outstandingRuns(), 0);
}

TEST_P(EachProvider, CountsTheCompletionAsPartOfTheRun) {
    int runsDuringCompletion = 0;
    requestProvider(*world.sampler, provider, 1, false, [&] {
        world.request(provider, 1, false);  // refused: this run is not over
        world.request(provider, 1, true);
        runsDuringCompletion = world.gates[provider]->outstandingRuns();
    });
    world.queues.runNext(world.label(provider));
    EXPECT_EQ(runsDuringCompletion, 2);
    EXPECT_EQ(world.waiting(provider), 1u);
    EXPECT_EQ(world.gates[provider]->outstandingRuns(), 1);
}

std::vector<ProviderRow> everyProvider() {
    std::vector<ProviderRow> rows;
    for (const std::string_view label : SystemSampler::queueLabels()) {
        const std::size_t index = rows.size();
        rows.push_back({{label.data() + label.rfind('.') + 1}, index});
    }
    return rows;
}

INSTANTIATE_TEST_SUITE_P(SystemSampler, EachProvider, testing::ValuesIn(everyProvider()),
                         rowName<ProviderRow>);

}  // namespace
}  // namespace vantor::system_sampler_provider_test
