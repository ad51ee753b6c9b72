#pragma once

#include <chrono>
#include <cstddef>
#include <vector>

#include "sampling/counted_allocations.h"

namespace vantor::bench {

/// How long one kind of pass takes, from rounds that are taken in turns with other kinds so that
/// the machine's moods touch them alike.
class PassRow {
  public:
    PassRow(const char* name, int passesPerRound) : name_(name), passes_(passesPerRound) {}

    template <class Pass>
    void run(Pass pass) {
        using Clock = std::chrono::steady_clock;
        const std::size_t before = countedAllocations();
        const auto start = Clock::now();
        for (int i = 0; i < passes_; ++i)
            pass();
        const std::chrono::duration<double, std::micro> spent = Clock::now() - start;
        allocations_ += countedAllocations() - before;
        microseconds_.push_back(spent.count() / passes_);
    }

    void forget() {
        microseconds_.clear();
        allocations_ = 0;
    }

    const char* name() const { return name_; }

    /// Of all rounds, of one pass.
    double median() const;
    double allocations() const;

  private:
    const char* name_;
    int passes_;
    std::vector<double> microseconds_;  // per pass, one of each round
    std::size_t allocations_ = 0;
};

enum class Allocations { allowed, forbidden };

/// Writes the heading of the rows that `report` writes.
void reportHeading();

/// Writes a row that nothing is asked of.
void reportBeside(const PassRow& row, const PassRow& bare);

/// Writes a row for the bare pass and one for the reading. False when the reading takes longer than
/// `limit` times the bare pass, or asks for memory where that is forbidden.
bool report(const PassRow& bare, const PassRow& reading, double limit, Allocations allocations);

}  // namespace vantor::bench
