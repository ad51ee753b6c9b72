#pragma once

#include <QString>

#include <optional>

#include "e2e/assistive_client.h"

namespace vantor {

/// The program as a user of a screen reader operates it: by roles and names, without a keyboard and
/// without a place on the screen.
class SpokenProgram {
  public:
    /// `client` must outlive it.
    explicit SpokenProgram(const AssistiveClient& client) : client_(client) {}

    /// The first element of that role whose name begins so;
    /// none when there is none now.
    std::optional<AccessibleElement> find(const char* role, const char* begins) const;

    /// Whether an element of exactly that name is on the screen.
    bool finds(const char* name) const;

    /// Waits for the element and asks it to do what its action is called; false when it does not
    /// come or has no such action.
    bool act(const char* role, const char* begins, const char* action) const;
    bool press(const char* role, const char* begins) const { return act(role, begins, "Press"); }

    /// Whether it is there and on the screen.
    bool shows(const char* role, const char* begins) const;

    /// Whether each card has come to say something, and the processor a load.
    bool hasAnsweredOnAllCards() const;

  private:
    const AssistiveClient& client_;
};

}  // namespace vantor
