#pragma once

#include <string>

namespace vantor {

/// What an alert says. Texts are UTF-8.
struct AlertText {
    std::string message;          ///< what happened, in a few words
    std::string informativeText;  ///< why, in sentences

    bool operator==(const AlertText&) const = default;
};

/// Messages that the user has to acknowledge. Main thread.
class Alerts {
  public:
    virtual ~Alerts() = default;

    /// Shows the message and returns when it has been dismissed. The main loop runs meanwhile, so
    /// the caller may have been destroyed by then.
    virtual void runModal(const AlertText& text) = 0;
};

}  // namespace vantor
