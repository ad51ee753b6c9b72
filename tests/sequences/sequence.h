#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace vantor {

/// The life of one random machine with a reader, and of an oracle that was told everything and
/// works out from the whole history what the reader has to say.
class Sequence {
  public:
    virtual ~Sequence() = default;

    /// Lets time pass and things happen, and takes a reading. What the reader said wrongly, in
    /// words; absent when it agrees with the oracle.
    virtual std::optional<std::string> step() = 0;
};

struct SequenceKind {
    std::string_view name;
    std::uint64_t stepsOfALife;
    std::unique_ptr<Sequence> (*begin)(std::uint64_t seed);
};

std::span<const SequenceKind> sequenceKinds();

struct SequenceFailure {
    std::uint64_t seed = 0;  ///< of the life
    std::uint64_t step = 0;  ///< of that life, from 0
    std::string difference;
};

/// That many steps, life after life with the seeds from `seed` on; ends at the first difference.
std::optional<SequenceFailure> liveThrough(const SequenceKind& kind, std::uint64_t seed,
                                           std::uint64_t steps);

}  // namespace vantor
