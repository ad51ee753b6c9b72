#include "sequences/power_oracle.h"

#include "sequences/disagreement.h"

namespace vantor {

namespace {

using Source = PowerOracle::Source;

/// What a list comes to: a failure, an update without a source, or one with a source.
struct Verdict {
    bool isUpdate = false;
    const Source* source = nullptr;
};

bool isUsable(const Source& source) {
    return source.isDescribed && source.type && source.state && source.current.value_or(-1) >= 0 &&
           source.maximum.value_or(0) >= 1;
}

Verdict verdictOn(const std::vector<Source>& sources) {
    if (sources.empty()) return {true, nullptr};
    // A battery of the machine's own wins, unless an entry before it could not even be fetched.
    bool areAllUsable = true;
    for (const Source& source : sources) {
        if (!source.isFetchable) return {};
        if (isUsable(source) && source.type == "InternalBattery") return {true, &source};
        areAllUsable = areAllUsable && isUsable(source);
    }
    return areAllUsable ? Verdict{true, &sources.front()} : Verdict{};
}

std::optional<std::int64_t> unlessNegative(std::optional<std::int64_t> value) {
    return value.value_or(-1) < 0 ? std::nullopt : value;
}

std::optional<std::int64_t> minutesLeft(const Source& source) {
    if (source.isCharging == true) return unlessNegative(source.minutesToFull);
    if (source.state == "AC Power") return std::nullopt;
    return unlessNegative(source.minutesToEmpty);
}

void compare(Disagreement& disagreement, const PowerStats& actual, const Source& source) {
    const long double full = static_cast<long double>(*source.maximum);
    const long double charge = static_cast<long double>(*source.current) / full;
    disagreement.expectClose("charge", actual.chargeFraction, charge > 1 ? 1 : charge);
    disagreement.expectSame("name", actual.name, source.name.value_or("Battery"));
    disagreement.expectSame("charging", actual.isCharging, source.isCharging == true);
    disagreement.expectSame("on AC", actual.isConnectedToAC, source.state == "AC Power");
    disagreement.expectSame("minutes left", actual.timeRemainingMinutes, minutesLeft(source));
    disagreement.expectSame("cycles", actual.cycleCount, unlessNegative(source.cycles));
}

}  // namespace

std::optional<std::string> PowerOracle::judge(const PowerReadResult& actual,
                                              const std::optional<std::vector<Source>>& sources) {
    const Verdict verdict = sources ? verdictOn(*sources) : Verdict{};
    Disagreement disagreement;
    disagreement.expectSame("update", actual.isUpdate(), verdict.isUpdate);
    if (!actual.isUpdate() || !verdict.isUpdate) return disagreement.text();
    const auto& stats = actual.stats();
    disagreement.expectSame("there is a record", stats.has_value(), verdict.source != nullptr);
    if (stats && verdict.source) compare(disagreement, *stats, *verdict.source);
    return disagreement.text();
}

}  // namespace vantor
