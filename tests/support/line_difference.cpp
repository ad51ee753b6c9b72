#include "support/line_difference.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace vantor {

namespace {

constexpr std::size_t linesAround = 3;

struct Line {
    char mark;  // '-', '+' or ' '
    std::string_view text;
};

std::vector<std::string_view> split(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const auto lineEnd = text.find('\n');
        lines.push_back(text.substr(0, lineEnd));
        text.remove_prefix(lineEnd == std::string_view::npos ? text.size() : lineEnd + 1);
    }
    return lines;
}

/// Both texts as one list, by the longest common subsequence of their lines.
std::vector<Line> merge(const std::vector<std::string_view>& one,
                        const std::vector<std::string_view>& other) {
    const std::size_t width = other.size() + 1;
    std::vector<std::size_t> common((one.size() + 1) * width, 0);  // of the rests from i and j on
    for (std::size_t i = one.size(); i-- > 0;) {
        for (std::size_t j = other.size(); j-- > 0;) {
            common[i * width + j] = one[i] == other[j] ? common[(i + 1) * width + j + 1] + 1
                                                       : std::max(common[(i + 1) * width + j],
                                                                  common[i * width + j + 1]);
        }
    }
    std::vector<Line> merged;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < one.size() || j < other.size()) {
        if (i < one.size() && j < other.size() && one[i] == other[j]) {
            merged.push_back({' ', one[i++]});
            ++j;
        } else if (j == other.size() ||
                   (i < one.size() && common[(i + 1) * width + j] >= common[i * width + j + 1])) {
            merged.push_back({'-', one[i++]});
        } else {
            merged.push_back({'+', other[j++]});
        }
    }
    return merged;
}

}  // namespace

std::string lineDifference(std::string_view one, std::string_view other) {
    const std::vector<Line> lines = merge(split(one), split(other));
    std::string text;
    std::size_t told = 0;  // lines before this are told, or passed over
    for (std::size_t at = 0; at < lines.size(); ++at) {
        if (lines[at].mark == ' ') continue;
        const std::size_t first = std::max(told, at - std::min(at, linesAround));
        if (first > told || told == 0) text += "@@ line " + std::to_string(first + 1) + " @@\n";
        std::size_t last = at;
        for (std::size_t next = at; next < std::min(lines.size(), last + 2 * linesAround); ++next) {
            if (lines[next].mark != ' ') last = next;
        }
        const std::size_t end = std::min(lines.size(), last + 1 + linesAround);
        for (std::size_t line = first; line < end; ++line) {
            text += lines[line].mark;
            text += lines[line].text;
            text += '\n';
        }
        told = end;
        at = end - 1;
    }
    return text;
}

}  // namespace vantor
