#include "sequences/sequence.h"

#include <algorithm>
#include <array>

#include "sequences/memory_sequence.h"
#include "sequences/network_sequence.h"
#include "sequences/power_sequence.h"
#include "sequences/process_sequence.h"
#include "sequences/processor_sequence.h"

namespace vantor {

namespace {

template <class Kind>
std::unique_ptr<Sequence> begin(std::uint64_t seed) {
    return std::make_unique<Kind>(seed);
}

constexpr std::array kinds{SequenceKind{"processor", 500, begin<ProcessorSequence>},
                           SequenceKind{"processes", 300, begin<ProcessSequence>},
                           SequenceKind{"network", 500, begin<NetworkSequence>},
                           SequenceKind{"memory", 100, begin<MemorySequence>},
                           SequenceKind{"power", 100, begin<PowerSequence>}};

}  // namespace

std::span<const SequenceKind> sequenceKinds() {
    return kinds;
}

std::optional<SequenceFailure> liveThrough(const SequenceKind& kind, std::uint64_t seed,
                                           std::uint64_t steps) {
    for (; steps > 0; ++seed) {
        const auto life = kind.begin(seed);
        const std::uint64_t stepsOfThis = std::min(steps, kind.stepsOfALife);
        for (std::uint64_t step = 0; step < stepsOfThis; ++step) {
            if (auto difference = life->step()) {
                return SequenceFailure{seed, step, std::move(*difference)};
            }
        }
        steps -= stepsOfThis;
    }
    return std::nullopt;
}

}  // namespace vantor
