#include "pass_row.h"

#include <algorithm>
#include <cstdio>

#include "verdict.h"

namespace vantor::bench {

namespace {

void begin(const PassRow& row, double bareMedian) {
    std::printf("%-36s %9.2f %8.2f %8.2f", row.name(), row.median(), row.median() / bareMedian,
                row.allocations());
}

}  // namespace

double PassRow::median() const {
    std::vector<double> sorted = microseconds_;
    const auto middle = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), middle, sorted.end());
    return *middle;
}

double PassRow::allocations() const {
    return static_cast<double>(allocations_) /
           (static_cast<double>(microseconds_.size()) * passes_);
}

void reportHeading() {
    std::printf("%-36s %9s %8s %8s %6s  %s\n", "pass", "us", "/bare", "allocs", "limit", "verdict");
}

void reportBeside(const PassRow& row, const PassRow& bare) {
    begin(row, bare.median());
    std::printf(" %6s  %s\n", "-", "-");
}

bool report(const PassRow& bare, const PassRow& reading, double limit, Allocations allocations) {
    const double baseline = bare.median();
    reportBeside(bare, bare);
    begin(reading, baseline);
    const bool mayAllocate = allocations == Allocations::allowed;
    const bool passes =
        reading.median() <= limit * baseline && (mayAllocate || reading.allocations() == 0.0);
    std::printf(" %6.1f  %s\n", limit, passes ? "ok" : "TOO MUCH");
    tellResult(reading.name(), reading.median() / baseline, limit, passes);
    return passes;
}

}  // namespace vantor::bench
