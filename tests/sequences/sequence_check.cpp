#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <span>
#include <string_view>

#include "sequences/sequence.h"

/// Lets random machines live and holds each reader against its oracle.
namespace {

using namespace vantor;

constexpr const char* usage =
    "sequence_check KIND SEED STEPS     so many steps, from the life with that seed on\n"
    "sequence_check KIND SEED SECONDSs  for so long, e.g. 60s\n"
    "KIND: ";

std::optional<std::uint64_t> numberIn(std::string_view text) {
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

const SequenceKind* kindNamed(std::string_view name) {
    for (const SequenceKind& kind : sequenceKinds()) {
        if (kind.name == name) return &kind;
    }
    return nullptr;
}

int explain() {
    std::fputs(usage, stderr);
    for (const SequenceKind& kind : sequenceKinds())
        std::fprintf(stderr, "%s ", kind.name.data());
    std::fputs("\n", stderr);
    return 2;
}

int check(const SequenceKind& kind, std::uint64_t seed, std::optional<std::uint64_t> steps,
          std::chrono::seconds duration) {
    const auto end = std::chrono::steady_clock::now() + duration;
    std::uint64_t done = 0;
    while (steps ? done < *steps : std::chrono::steady_clock::now() < end) {
        std::uint64_t next = kind.stepsOfALife;
        if (steps && *steps - done < next) next = *steps - done;
        if (const auto failure = liveThrough(kind, seed, next)) {
            std::printf(
                "%s: seed %llu, step %llu:\n%sTo see it again: sequence_check %s %llu %llu\n",
                kind.name.data(), static_cast<unsigned long long>(failure->seed),
                static_cast<unsigned long long>(failure->step), failure->difference.c_str(),
                kind.name.data(), static_cast<unsigned long long>(failure->seed),
                static_cast<unsigned long long>(failure->step + 1));
            return 1;
        }
        done += next;
        ++seed;
    }
    std::printf("%s: %llu steps, nothing found\n", kind.name.data(),
                static_cast<unsigned long long>(done));
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 4) return explain();
    const SequenceKind* const kind = kindNamed(arguments[1]);
    const auto seed = numberIn(arguments[2]);
    std::string_view length = arguments[3];
    const bool isTime = length.ends_with('s');
    if (isTime) length.remove_suffix(1);
    const auto number = numberIn(length);
    if (!kind || !seed || !number) return explain();
    if (!isTime) return check(*kind, *seed, *number, {});
    return check(*kind, *seed, std::nullopt, std::chrono::seconds(*number));
}
