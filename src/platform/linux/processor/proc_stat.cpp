#include "platform/linux/processor/proc_stat.h"

#include <array>

namespace vantor {

namespace {

// user nice system idle iowait irq softirq steal (guest guest_nice follow and are parts of the
// first two). Kernels before 2.6 end after idle; the later ones are then zero.
constexpr std::size_t procStatFieldCount = 8;
constexpr std::size_t requiredFields = 4;

/// Reads one decimal number at `at` and moves past it; false when there is none or it overflows.
bool readNumber(const char*& at, const char* end, std::uint64_t& number) {
    const char* const start = at;
    std::uint64_t value = 0;
    for (; at != end && *at >= '0' && *at <= '9'; ++at) {
        const auto digit = static_cast<std::uint64_t>(*at - '0');
        if (value > (UINT64_MAX - digit) / 10) return false;
        value = value * 10 + digit;
    }
    number = value;
    return at != start;
}

/// Reads the counters after the processor's name; `line` is without its line end.
std::optional<ProcStat::Ticks> readTicks(const char* at, const char* end) {
    std::array<std::uint64_t, procStatFieldCount> fields{};
    std::size_t count = 0;
    while (count < procStatFieldCount) {
        while (at != end && *at == ' ')
            ++at;
        if (at == end) break;
        if (!readNumber(at, end, fields[count])) return std::nullopt;
        if (at != end && *at != ' ') return std::nullopt;
        ++count;
    }
    if (count < requiredFields) return std::nullopt;
    const auto [user, nice, system, idle, iowait, irq, softirq, steal] = fields;
    return ProcStat::Ticks{user, system + irq + softirq + steal, idle + iowait, nice};
}

}  // namespace

void ProcStat::parse(std::string_view text) {
    total.reset();
    processors.clear();
    processorsAreWhole = true;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (end - at >= 4 && at[0] == 'c' && at[1] == 'p' && at[2] == 'u') {
        const char* lineEnd = at;
        while (lineEnd != end && *lineEnd != '\n')
            ++lineEnd;
        // A line without its end was cut, and its last number may be the front of a longer one.
        const bool isWhole = lineEnd != end;
        const char* field = at + 3;
        if (*field == ' ') {
            if (isWhole) total = readTicks(field, lineEnd);
        } else {
            std::uint64_t id = 0;
            const bool named = isWhole && readNumber(field, lineEnd, id) && id <= UINT32_MAX;
            const auto ticks = named ? readTicks(field, lineEnd) : std::nullopt;
            if (ticks) {
                processors.push_back({static_cast<std::uint32_t>(id), *ticks});
            } else {
                processorsAreWhole = false;
            }
        }
        at = isWhole ? lineEnd + 1 : end;
    }
    // Other lines follow in a whole file; the front of a processor's name means that it was cut.
    const std::string_view rest(at, static_cast<std::size_t>(end - at));
    const bool isCut = !rest.empty() && std::string_view("cpu").starts_with(rest);
    if (isCut || processors.empty()) processorsAreWhole = false;
}

}  // namespace vantor
