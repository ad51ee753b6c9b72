#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

namespace vantor {

/// A text that never changes and is shared, not copied: the names of thousands of processes travel
/// from sample to sample and from state to state. Any thread.
class SharedText {
  public:
    SharedText() = default;
    SharedText(std::string text)  // NOLINT(google-explicit-constructor): a text as another type
        : text_(text.empty() ? nullptr : std::make_shared<const std::string>(std::move(text))) {}
    SharedText(const char* text)  // NOLINT(google-explicit-constructor)
        : SharedText(std::string(text)) {}

    /// Two texts that are mostly used together, in one allocation.
    static std::pair<SharedText, SharedText> pair(std::string first, std::string second) {
        struct Both {
            std::string first;
            std::string second;
        };
        const auto both = std::make_shared<const Both>(Both{std::move(first), std::move(second)});
        const auto part = [&](const std::string& text) {
            SharedText shared;
            if (!text.empty()) shared.text_ = std::shared_ptr<const std::string>(both, &text);
            return shared;
        };
        return {part(both->first), part(both->second)};
    }

    const std::string& string() const { return text_ ? *text_ : emptyString(); }
    operator const std::string&() const { return string(); }  // NOLINT(google-explicit-constructor)

    /// Whether both are the same object: then they are equal, and nothing was copied.
    bool isSame(const SharedText& other) const { return text_ == other.text_; }

    friend bool operator==(const SharedText& a, const SharedText& b) {
        return a.text_ == b.text_ || a.string() == b.string();
    }
    friend bool operator==(const SharedText& a, std::string_view b) { return a.string() == b; }
    friend std::ostream& operator<<(std::ostream& out, const SharedText& text) {
        return out << text.string();
    }

  private:
    static const std::string& emptyString();

    std::shared_ptr<const std::string> text_;  // null = empty
};

}  // namespace vantor
