#pragma once

#include <cstddef>
#include <vector>

#include "sampling/counted_allocations.h"

#include "processor_time.h"

namespace vantor::bench {

/// The processor time of one kind of pass, from rounds that are taken in turns with other kinds so
/// that the machine's moods touch them alike. Time in the processor's queue is none: beside other
/// work a long pass waits there more often than the short one that it is compared with.
class PassRow {
  public:
    PassRow(const char* name, int passesPerRound) : name_(name), passes_(passesPerRound) {}

    template <class Pass>
    void run(Pass pass) {
        const std::size_t before = countedAllocations();
        const double start = processCPUSeconds();
        for (int i = 0; i < passes_; ++i)
            pass();
        const double spent = processCPUSeconds() - start;
        allocations_ += countedAllocations() - before;
        microseconds_.push_back(spent * 1e6 / passes_);
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
