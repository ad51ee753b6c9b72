#pragma once

#include <cctype>
#include <optional>
#include <string_view>

namespace vantor {

/// Scans the text of a drawing, from its beginning on. Borrows the text.
class TextScanner {
  public:
    explicit TextScanner(std::string_view text) : left_(text) {}

    bool isAtEnd() const { return left_.empty(); }

    void skipSpace() {
        while (!left_.empty() && (isSpace(left_.front()) || left_.front() == ','))
            left_.remove_prefix(1);
    }

    /// The next character, if it is one that `belongs`.
    template <typename Predicate>
    std::optional<char> take(Predicate belongs) {
        if (left_.empty() || !belongs(left_.front())) return std::nullopt;
        const char taken = left_.front();
        left_.remove_prefix(1);
        return taken;
    }

    std::optional<char> takeLetter() {
        skipSpace();
        return take([](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; });
    }

    /// A number without exponent. It ends where none goes on: "1.3.5" are two.
    std::optional<double> takeNumber() {
        skipSpace();
        std::string_view text = left_;
        const bool isNegative = !text.empty() && text.front() == '-';
        if (isNegative) text.remove_prefix(1);
        double value = 0;
        double unit = 1;
        bool hasDigits = false;
        bool hasPoint = false;
        for (; !text.empty(); text.remove_prefix(1)) {
            const char c = text.front();
            if (c == '.' && !hasPoint) {
                hasPoint = true;
            } else if (c >= '0' && c <= '9') {
                hasDigits = true;
                value = value * 10 + (c - '0');
                if (hasPoint) unit *= 10;
            } else {
                break;
            }
        }
        if (!hasDigits) return std::nullopt;
        left_ = text;
        return (isNegative ? -value : value) / unit;
    }

    /// A sign of an arc, which may stand right before what follows it.
    std::optional<bool> takeFlag() {
        skipSpace();
        const auto flag = take([](char c) { return c == '0' || c == '1'; });
        return flag ? std::optional(*flag == '1') : std::nullopt;
    }

  private:
    static bool isSpace(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

    std::string_view left_;
};

}  // namespace vantor
