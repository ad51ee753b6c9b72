#include "sampling/system_sampler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <vector>

#include "model/system_snapshot.h"
#include "sampling/sampler_world.h"

namespace vantor::system_sampler_test {
namespace {

using namespace std::chrono_literals;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

TEST(SystemSampler, MakesItsEightQueuesInOrder) {
    SamplerWorld world;
    EXPECT_THAT(
        world.queues.labels(),
        ElementsAre("com.kestrone.Vantor.provider.cpu", "com.kestrone.Vantor.provider.memory",
                    "com.kestrone.Vantor.provider.network", "com.kestrone.Vantor.provider.system",
                    "com.kestrone.Vantor.provider.processes", "com.kestrone.Vantor.provider.gpu",
                    "com.kestrone.Vantor.provider.storage", "com.kestrone.Vantor.provider.power"));
    EXPECT_EQ(world.gates.size(), 8u);
    EXPECT_EQ(world.waitingAnywhere(), 0u);
}

TEST(SystemSampler, FirstProcessorReadingIsABaselineAndTheSecondAUsage) {
    SamplerWorld world;
    world.requestUsage();
    world.requestUsage();
    world.queues.runWaiting();
    EXPECT_THAT(world.usages, ElementsAre(std::nullopt, Optional(0.4)));
}

TEST(SystemSampler, FailedProcessorReadingIsAnAbsentAnswer) {
    SamplerWorld world;
    world.requestUsage();
    world.queues.runWaiting();
    world.machine->hostProcessors().totalFails = true;
    world.requestUsage();
    world.queues.runWaiting();
    EXPECT_THAT(world.usages, ElementsAre(std::nullopt, std::nullopt));
    EXPECT_EQ(world.gates[0]->outstandingRuns(), 0);
}

TEST(SystemSampler, ResetTakesEffectAfterQueuedReadsAndBeforeLaterOnes) {
    SamplerWorld world;
    world.requestUsage();
    world.queues.runWaiting();
    world.requestUsage();
    world.sampler->resetDeltaBaselines();
    world.requestUsage();
    world.queues.runWaiting();
    world.requestUsage();
    world.queues.runWaiting();
    EXPECT_THAT(world.usages,
                ElementsAre(std::nullopt, Optional(0.4), std::nullopt, Optional(0.4)));
}

TEST(SystemSampler, ResetGoesToTheQueuesOfTheThreeProvidersThatMeasureOverIntervals) {
    SamplerWorld world;
    world.sampler->resetDeltaBaselines();
    for (std::size_t provider = 0; provider < SystemSampler::queueLabels().size(); ++provider) {
        const bool isMeasured = provider == 0 || provider == 2 || provider == 4;
        EXPECT_EQ(world.waiting(provider), isMeasured ? 1u : 0u) << world.label(provider);
    }
}

TEST(SystemSampler, ResetMakesTheNextProcessReadingABaselineAgain) {
    SamplerWorld world;
    world.machine->processTable().add(7, "/bin/seven");
    std::vector<std::size_t> sizes;
    const auto request = [&] {
        world.clock->wind(1s);
        world.sampler->requestProcesses(
            1, true, [&](const ProcessSample& sample) { sizes.push_back(sample.all.size()); });
        world.queues.runWaiting();
    };
    const std::size_t all = world.machine->processTable().processes.size();
    request();
    request();
    world.sampler->resetDeltaBaselines();
    request();
    request();
    EXPECT_THAT(sizes, ElementsAre(0, all, 0, all));
}

TEST(SystemSampler, ResetPassesThroughNoGate) {
    SamplerWorld world;
    world.sampler->resetDeltaBaselines();
    world.sampler->resetDeltaBaselines();
    world.sampler->resetDeltaBaselines();
    for (const auto& gate : world.gates)
        EXPECT_EQ(gate->outstandingRuns(), 0);
    world.requestUsage(false);
    world.queues.runWaiting();
    EXPECT_EQ(world.usages.size(), 1u);
    world.sampler->resetDeltaBaselines();
    world.queues.runWaiting();
    world.clock->wind(500ms);
    world.requestUsage(false);  // a reset is no run that would put the next one off
    world.queues.runWaiting();
    EXPECT_EQ(world.usages.size(), 2u);
}

TEST(SystemSampler, ResetDoesNothingOnceTheSamplerIsGone) {
    SamplerWorld world;
    world.sampler->resetDeltaBaselines();
    const std::weak_ptr<SystemSampler> sampler = world.sampler;
    world.sampler.reset();
    EXPECT_TRUE(sampler.expired());
    world.queues.runWaiting();
    EXPECT_EQ(world.machine->hostProcessors().totalReads, 0);
}

TEST(SystemSampler, ProvidersDoNotHoldEachOtherUp) {
    SamplerWorld world;
    for (std::size_t provider = 0; provider < 8; ++provider)
        world.request(provider, 1, false);
    EXPECT_EQ(world.waitingAnywhere(), 8u);
    world.queues.runNext(world.label(7));
    EXPECT_EQ(world.answers, 1);
    EXPECT_EQ(world.gates[0]->outstandingRuns(), 1);
}

TEST(SystemSampler, IntervalCountsFromWhereTheRunStarted) {
    SamplerWorld world;
    world.requestUsage(false);
    world.clock->wind(10s);
    world.queues.runWaiting();
    world.clock->wind(400ms);
    world.requestUsage(false);
    EXPECT_EQ(world.waitingAnywhere(), 0u);
    world.clock->wind(100ms);
    world.requestUsage(false);
    EXPECT_EQ(world.waitingAnywhere(), 1u);
}

TEST(SystemSampler, DestructionSkipsTheProbes) {
    SamplerWorld world;
    world.requestUsage();
    world.sampler.reset();
    world.queues.runWaiting();
    EXPECT_EQ(world.machine->hostProcessors().totalReads, 0);
    EXPECT_THAT(world.usages, IsEmpty());
}

TEST(SystemSampler, DestructionDuringARunLetsItAnswerAndEndsTheOthers) {
    SamplerWorld world;
    world.machine->hostProcessors().onTotalTicks = [&world] { world.sampler.reset(); };
    for (std::size_t provider = 0; provider < 8; ++provider) {
        world.request(provider, 1, true);
        world.request(provider, 1, true);
    }
    EXPECT_EQ(world.queues.runWaiting(), 16u);
    EXPECT_EQ(world.answers, 1);
    EXPECT_EQ(world.machine->hostProcessors().totalReads, 1);
    for (const auto& gate : world.gates)
        EXPECT_EQ(gate->outstandingRuns(), 0);
}

TEST(SystemSampler, CompletionMayDestroyIt) {
    SamplerWorld world;
    const std::weak_ptr<SystemSampler> sampler = world.sampler;
    requestProvider(*world.sampler, 1, 1, true, [&world] { world.sampler.reset(); });
    world.request(1, 1, true);
    world.queues.runWaiting();
    EXPECT_TRUE(sampler.expired());
    EXPECT_EQ(world.answers, 0);
    EXPECT_EQ(world.gates[1]->outstandingRuns(), 0);
}

TEST(SystemSampler, DestructionInvalidatesEveryGate) {
    SamplerWorld world;
    world.sampler.reset();
    for (const auto& gate : world.gates) {
        EXPECT_FALSE(std::const_pointer_cast<ProviderGate>(gate)->begin(0, true));
    }
}

TEST(SystemSampler, WaitingWorkKeepsTheMachineButNotTheSampler) {
    SamplerWorld world;
    world.request(0, 1, true);
    world.gates.clear();
    const std::weak_ptr<SystemSampler> sampler = world.sampler;
    const std::weak_ptr<SimulatedMachine> machine = world.machine;
    world.sampler.reset();
    world.machine.reset();
    EXPECT_TRUE(sampler.expired());
    EXPECT_FALSE(machine.expired());
    world.queues.runWaiting();
    EXPECT_TRUE(machine.expired());
}

TEST(SystemSampler, CompletionsAreLetGoOfWhenAnsweredOrRefused) {
    SamplerWorld world;
    const auto owned = std::make_shared<int>();
    requestProvider(*world.sampler, 2, 1, false, [owned] {});
    EXPECT_EQ(owned.use_count(), 2);
    requestProvider(*world.sampler, 2, 1, false, [owned] {});  // refused
    EXPECT_EQ(owned.use_count(), 2);
    world.queues.runWaiting();
    EXPECT_EQ(owned.use_count(), 1);
}

TEST(SystemSampler, WhatTheProbeDoesNotKnowIsPassedOnAsNothing) {
    SamplerWorld world;
    std::vector<bool> answers;
    for (const bool lookupFails : {false, true}) {
        world.machine->graphicsDevices().devices.clear();
        world.machine->accelerators().lookupFails = lookupFails;
        world.clock->wind(std::chrono::seconds(10));
        world.sampler->requestGPUs(1, true,
                                   [&](const auto& gpus) { answers.push_back(gpus.has_value()); });
        world.queues.runWaiting();
    }
    EXPECT_EQ(answers, (std::vector{true, false}));
}

}  // namespace
}  // namespace vantor::system_sampler_test
