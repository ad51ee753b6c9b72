#pragma once

#include <algorithm>

namespace vantor::bench {

/// What the programs of this folder are asked for: the whole measurement, judged by its limits, or
/// with the argument "--short" a quick one that only tells its ratios.
class Form {
  public:
    Form(int argc, char** argv);

    bool isShort() const { return isShort_; }

    /// How often to do what the whole measurement does `rounds` times.
    int of(int rounds) const {
        return isShort_ ? std::min(rounds, std::max(20, rounds / 8)) : rounds;
    }

    /// The program's exit status: a ratio of a short measurement is judged by whoever started it.
    int status(bool passes) const { return passes || isShort_ ? 0 : 1; }

  private:
    bool isShort_ = false;
};

/// Writes a line for scripts/bench, which makes one table of all of them:
/// "RESULT", name, ratio, limit, "ok" or "TOO MUCH", divided by tabs.
void tellResult(const char* name, double ratio, double limit, bool passes);

}  // namespace vantor::bench
