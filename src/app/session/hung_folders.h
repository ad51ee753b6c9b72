#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <chrono>
#include <functional>
#include <future>

namespace vantor {

/// The user's folders that do not answer. The libraries beneath the toolkit look there for fonts,
/// pointers, composed characters and settings, on the main thread and before the first frame: where
/// one hangs, no window would ever come. Before the toolkit's application object is made.
class HungFolders {
  public:
    /// Returns when the folder has answered, whatever it says. Called on a thread of its own, where
    /// it may wait for ever: it must own what it needs, and leave the environment alone.
    using Question = std::function<void(const QByteArray& folder)>;
    using Answer = std::future<void>;
    using Time = std::chrono::steady_clock::time_point;

    /// Waits for the answer of a folder, but not beyond that time. For tests.
    using Wait = std::function<void(const QByteArray& folder, const Answer& answer, Time end)>;

    /// Longer than for one file: what is found here holds until the program's end.
    static constexpr std::chrono::milliseconds patience{500};

    /// Asks the home folder, and those of the XDG that the environment names, all at the same time.
    explicit HungFolders(std::chrono::milliseconds limit = patience,
                         const Question& question = askDisk, const Wait& wait = waitUntil);

    const QByteArrayList& folders() const { return folders_; }

    /// Leaves nothing in the environment that leads into them. A home folder among them becomes one
    /// that is no folder: that answers at once, and nothing can be made in it.
    void leaveOutOfEnvironment() const;

  private:
    static void askDisk(const QByteArray& folder);
    static void waitUntil(const QByteArray& folder, const Answer& answer, Time end);
    bool leadsInto(const QByteArray& path) const;

    QByteArrayList folders_;
};

}  // namespace vantor
