#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vantor {

/// How far a process is confined.
struct ConfinementState {
    bool isConfined = false;           ///< at least in part
    std::vector<std::string> missing;  ///< what the kernel does not enforce, each a few words

    /// "yes", "in part (without ...)" or "no": what follows "Confined by the kernel: ".
    std::string text() const;
};

/// What keeps this process, whatever its code may come to do, from starting programs, opening
/// internet connections, looking into other processes and writing where it has no business.
///
/// What the system cannot enforce is left out and told by state(): it is never a reason not to
/// start. Nothing that has been taken away comes back. Main thread.
class Confinement {
  public:
    Confinement() = default;
    Confinement(const Confinement&) = delete;
    Confinement& operator=(const Confinement&) = delete;
    virtual ~Confinement() = default;

    /// Before the first other thread and before the toolkit. What a display needs is left.
    virtual void confineEarly() = 0;

    /// Whether the program may still have to begin to listen at a socket of its own.
    enum class Listening { isOver, mayBegin };

    /// Once the display is connected: for all threads.
    virtual void confineForRunning(Listening listening) = 0;

    virtual ConfinementState state() const = 0;
};

/// What the build's operating system has of it; each folder of adapters defines this once.
std::unique_ptr<Confinement> makeNativeConfinement();

}  // namespace vantor
