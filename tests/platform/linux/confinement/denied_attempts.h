#pragma once

#include <array>
#include <cerrno>
#include <functional>
#include <vector>

namespace vantor {

/// A call that the confined program is denied. The arguments are invalid wherever the call has any,
/// so that it does no harm where it is not denied.
struct Attempt {
    const char* rule;
    long number;
    int error = EPERM;
    std::array<long, 3> arguments{-1, -1, -1};
};

/// One attempt for each rule, written down once more by hand: a rule that is lost has to be missed
/// by someone.
const std::vector<Attempt>& earlyAttempts();
const std::vector<Attempt>& internetAttempts();
const std::vector<Attempt>& runningAttempts();

/// What the kernel says to it: 0 where it is allowed.
int errorOf(const Attempt& attempt);

/// What `body` gives, as far as a child can tell: a number from 0 to 254, or 1000 and the signal
/// that ended it.
int inChild(const std::function<int()>& body);

}  // namespace vantor
