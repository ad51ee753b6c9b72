#pragma once

#include <cmath>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>

namespace vantor {

/// Collects in words what a reader said and should have said.
class Disagreement {
  public:
    template <class T, class U>
    void expectSame(std::string_view what, const T& actual, const U& expected,
                    std::string_view whose = {}) {
        if (actual == expected) return;
        begin(what, whose);
        text_ << write(actual) << " instead of " << write(expected) << '\n';
    }

    /// Room for the rounding of a handful of operations, and no more.
    void expectClose(std::string_view what, double actual, long double expected,
                     std::string_view whose = {}) {
        constexpr long double tolerance = 1e-12L;
        const long double room = tolerance * std::max(1.0L, std::fabs(expected));
        if (std::fabs(static_cast<long double>(actual) - expected) <= room) return;
        begin(what, whose);
        text_ << actual << " instead of " << expected << '\n';
    }

    /// Absent when nothing differs.
    std::optional<std::string> text() const {
        return isEmpty_ ? std::nullopt : std::optional(text_.str());
    }

  private:
    template <class T>
    static std::string write(const std::optional<T>& value) {
        return value ? write(*value) : "nothing";
    }
    static std::string write(std::nullopt_t) { return "nothing"; }
    static std::string write(const std::string& value) { return '"' + value + '"'; }
    static std::string write(bool value) { return value ? "yes" : "no"; }
    template <class T>
    static std::string write(const T& value) {
        std::ostringstream text;
        text.precision(17);
        text << value;
        return text.str();
    }

    void begin(std::string_view what, std::string_view whose) {
        isEmpty_ = false;
        text_.precision(17);
        text_ << what;
        if (!whose.empty()) text_ << " of " << whose;
        text_ << ": ";
    }

    bool isEmpty_ = true;
    std::ostringstream text_;
};

}  // namespace vantor
