#pragma once

#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>

namespace vantor {

/// Lines of "name  answer" in two columns.
class Report {
  public:
    explicit Report(std::ostream& out) : out_(out) {}

    void heading(std::string_view text);

    template <class Answer>
    void line(std::string_view name, const Answer& answer) {
        write(name, text(answer));
    }

    template <class Answer>
    static std::string text(const Answer& answer) {
        std::ostringstream out;
        if constexpr (std::is_same_v<Answer, bool>) {
            out << (answer ? "yes" : "no");
        } else {
            out << answer;
        }
        return out.str();
    }
    template <class Answer>
    static std::string text(const std::optional<Answer>& answer) {
        return answer ? text(*answer) : "absent";
    }

  private:
    void write(std::string_view name, std::string_view answer);

    std::ostream& out_;
};

}  // namespace vantor
