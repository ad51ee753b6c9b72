#include "sequences/processor_sequence.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantor {

namespace {

using Ticks = SimulatedHostProcessors::Ticks;

ProcessorOracle::Ticks plain(const Ticks& ticks) {
    return {ticks.user, ticks.system, ticks.idle, ticks.nice};
}

std::uint32_t counterOf(Chance& chance) {
    // Many begin shortly before they go round.
    const auto low = static_cast<std::uint32_t>(chance.ofAnySize(32));
    return chance.oneIn(2) ? low : ~(low >> 16);
}

Ticks someTicks(Chance& chance) {
    return {counterOf(chance), counterOf(chance), counterOf(chance), counterOf(chance)};
}

}  // namespace

ProcessorSequence::ProcessorSequence(std::uint64_t seed) : chance_(seed) {
    machine_->calls().sensors = sensors_;
    sensors_.processor = [this] { return temperature_; };
    host_.total = someTicks(chance_);
    host_.processors.resize(1 + chance_.below(chance_.oneIn(8) ? 64 : 6));
    for (Ticks& processor : host_.processors)
        processor = someTicks(chance_);
}

/// An interval of up to a few minutes; some see nothing happen at all.
void ProcessorSequence::work() {
    if (chance_.oneIn(10)) return;
    const unsigned bits = chance_.oneIn(50) ? 32 : 10;
    const auto some = [&] {
        return chance_.oneIn(3) ? 0U : static_cast<std::uint32_t>(chance_.ofAnySize(bits));
    };
    for (std::size_t i = 0; i < host_.processors.size(); ++i) {
        if (!chance_.oneIn(6)) host_.spend(i, {some(), some(), some(), some()});
    }
}

/// Counters that start again, or step.
void ProcessorSequence::changeCounters() {
    if (chance_.oneIn(40)) host_.total = someTicks(chance_);
    if (chance_.oneIn(40)) host_.total.idle -= static_cast<std::uint32_t>(chance_.below(5));
    if (chance_.oneIn(40)) host_.total.user += static_cast<std::uint32_t>(chance_.any());
    if (chance_.oneIn(60)) host_.total = {};
    if (host_.processors.empty() || !chance_.oneIn(20)) return;
    host_.processors[chance_.placeIn(host_.processors)] = someTicks(chance_);
}

void ProcessorSequence::changeProcessors() {
    if (!chance_.oneIn(25)) return;
    auto& processors = host_.processors;
    const std::size_t before = processors.size();
    processors.resize(chance_.below(10));
    for (std::size_t i = before; i < processors.size(); ++i)
        processors[i] = someTicks(chance_);
}

void ProcessorSequence::failAtTimes() {
    host_.totalFails = chance_.oneIn(20);
    host_.totalCounters = chance_.oneIn(20) ? chance_.below(4) : 4;
    host_.processorsFail = chance_.oneIn(15);
    host_.processorsAnswerNoArray = chance_.oneIn(30);
    host_.claimedProcessorCount.reset();
    host_.claimedWordCount.reset();
    const auto words = static_cast<std::uint32_t>(host_.processors.size() * 4);
    bool isClaimWrong = true;
    if (chance_.oneIn(30)) {
        host_.claimedProcessorCount = chance_.oneIn(2) ? 0U : std::uint32_t{1} << 30;
    } else if (chance_.oneIn(30) && words > 0) {
        host_.claimedWordCount = static_cast<std::uint32_t>(chance_.below(words));
    } else {
        isClaimWrong = words == 0;
    }
    coresFail_ = host_.processorsFail || host_.processorsAnswerNoArray || isClaimWrong;
}

void ProcessorSequence::changeLoad() {
    SimulatedLoadAverages& load = machine_->loadAverages();
    load.answer = chance_.oneIn(5) ? static_cast<int>(chance_.below(6)) - 1 : 3;
    for (double& value : load.values) {
        value = static_cast<double>(chance_.below(1000)) / 64;
        if (chance_.oneIn(50)) value = -value;
        if (chance_.oneIn(50)) value = std::numeric_limits<double>::quiet_NaN();
        if (chance_.oneIn(50)) value = std::numeric_limits<double>::infinity();
    }
    temperature_.reset();
    if (!chance_.oneIn(4)) temperature_ = static_cast<double>(chance_.below(110));
}

ProcessorOracle::Reading ProcessorSequence::truth() const {
    ProcessorOracle::Reading reading;
    if (!host_.totalFails && host_.totalCounters == 4) reading.total = plain(host_.total);
    if (!coresFail_) {
        reading.cores.emplace();
        for (const Ticks& processor : host_.processors)
            reading.cores->push_back(plain(processor));
    }
    const SimulatedLoadAverages& load = machine_->loadAverages();
    if (load.answer > 0) {
        reading.load = load.values;
        reading.load->resize(std::min<std::size_t>(3, static_cast<std::size_t>(load.answer)));
        for (const double value : *reading.load) {
            if (!std::isfinite(value) || value < 0) return reading.load.reset(), reading;
        }
    }
    return reading;
}

std::optional<std::string> ProcessorSequence::step() {
    work();
    changeCounters();
    changeProcessors();
    failAtTimes();
    changeLoad();
    if (chance_.oneIn(50)) {
        reader_.resetDeltas();
        oracle_.forget();
    }
    ProcessorOracle::Reading reading = truth();
    reading.temperature = temperature_;
    oracle_.hear(std::move(reading));
    const CPUStats* const actual = reader_.read();
    if (host_.portsOutstanding != 0 || host_.arraysOutstanding != 0) {
        return "something of the kernel's was not given back";
    }
    return oracle_.judge(actual);
}

}  // namespace vantor
