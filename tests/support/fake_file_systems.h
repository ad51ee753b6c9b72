#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "platform/linux/storage/file_systems.h"

namespace vantor {

/// File systems whose figures are told by path; others fail. It keeps a list of the paths touched.
class FakeFileSystems : public FileSystems {
  public:
    std::map<std::string, Space> spaces;
    std::vector<std::string> touched;

    /// Runs at the start of each call with its path; may block for ever.
    std::function<void(const std::string&)> onSpace;

    std::optional<Space> space(const std::string& path) override {
        touched.push_back(path);
        if (onSpace) onSpace(path);
        const auto found = spaces.find(path);
        if (found == spaces.end()) return std::nullopt;
        return found->second;
    }
};

/// File systems that hang and answer again as they are told. Any thread, several at once.
class HangingFileSystems : public FileSystems {
  public:
    /// What it says, once it says something; absent: that it failed.
    void say(const std::string& path, std::optional<Space> space) {
        change(path, [&](Place& place) { place.space = space; });
    }
    void hang(const std::string& path) {
        change(path, [](Place& place) { place.hangs = true; });
    }
    void goOn(const std::string& path) {
        change(path, [](Place& place) { place.hangs = false; });
    }
    /// Answers those that wait; later questions wait as well.
    void answerThoseWaiting(const std::string& path) {
        change(path, [](Place& place) { place.freed = place.questions; });
    }
    /// So that no question waits for ever.
    void goOnForGood() {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
        changed_.notify_all();
    }

    bool hangs(const std::string& path) {
        const std::lock_guard lock(mutex_);
        return places_[path].hangs;
    }
    int questions(const std::string& path) {
        const std::lock_guard lock(mutex_);
        return places_[path].questions;
    }
    void waitUntilAsked(const std::string& path, int questions) {
        std::unique_lock lock(mutex_);
        EXPECT_TRUE(changed_.wait_for(lock, std::chrono::seconds(20), [&] {
            return places_[path].questions >= questions;
        })) << path;
    }

    /// Runs at the start of each call, on its thread.
    std::function<void(const std::string&)> onSpace;

    std::optional<Space> space(const std::string& path) override {
        if (onSpace) onSpace(path);
        std::unique_lock lock(mutex_);
        Place& place = places_[path];
        const int number = ++place.questions;
        changed_.notify_all();
        changed_.wait(lock, [&] { return isOver_ || !place.hangs || number <= place.freed; });
        return place.space;
    }

  private:
    struct Place {
        std::optional<Space> space;
        bool hangs = false;
        int questions = 0;
        int freed = 0;
    };

    template <class Change>
    void change(const std::string& path, Change change) {
        const std::lock_guard lock(mutex_);
        change(places_[path]);
        changed_.notify_all();
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::string, Place> places_;
    bool isOver_ = false;
};

}  // namespace vantor
