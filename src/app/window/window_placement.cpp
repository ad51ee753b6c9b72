#include "app/window/window_placement.h"

#include <QRegion>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace vantor {

namespace {

// The window systems' own limits: a number beyond them is damaged.
constexpr int farthest = 1 << 16;
constexpr int largest = 1 << 15;
constexpr int thickest = 512;

constexpr std::string_view maximizedWord = "maximized";
constexpr std::string_view normalWord = "normal";
constexpr std::string_view noPosition = "-";

std::optional<int> numberIn(std::string_view word, int least, int most) {
    int number = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stop != end || number < least || number > most) return {};
    return number;
}

/// Words between single blanks; nothing if there are not just that many.
template <std::size_t Count>
std::optional<std::array<std::string_view, Count>> wordsOf(std::string_view text) {
    std::array<std::string_view, Count> words;
    for (std::size_t i = 0; i < Count; ++i) {
        const auto blank = text.find(' ');
        if ((blank == std::string_view::npos) != (i + 1 == Count)) return {};
        words[i] = text.substr(0, blank);
        text.remove_prefix(i + 1 == Count ? text.size() : blank + 1);
    }
    return words;
}

std::int64_t areaOf(const QRect& rect) {
    return rect.isEmpty() ? 0 : std::int64_t{rect.width()} * rect.height();
}

std::int64_t distance(const QRect& one, const QRect& other) {
    const QPoint between = one.center() - other.center();
    return std::int64_t{between.x()} * between.x() + std::int64_t{between.y()} * between.y();
}

/// The one that shows most of `frame`; when none shows any, the one it is nearest to.
const QRect& nearestTo(const QRect& frame, const std::vector<QRect>& screens) {
    return *std::max_element(screens.begin(), screens.end(),
                             [&](const QRect& one, const QRect& other) {
                                 const auto shownByOne = areaOf(one.intersected(frame));
                                 const auto shownByOther = areaOf(other.intersected(frame));
                                 if (shownByOne != shownByOther) return shownByOne < shownByOther;
                                 return distance(one, frame) > distance(other, frame);
                             });
}

bool areAllOf(const QRect& frame, const std::vector<QRect>& screens) {
    QRegion unseen(frame);
    for (const QRect& screen : screens)
        unseen -= screen;
    return unseen.isEmpty();
}

}  // namespace

std::string WindowPlacement::text() const {
    const auto number = [](int value) { return std::to_string(value) + ' '; };
    std::string text =
        position ? number(position->x()) + number(position->y()) : std::string("- - ");
    for (const int value :
         {size.width(), size.height(), frame.left(), frame.top(), frame.right(), frame.bottom()}) {
        text += number(value);
    }
    return text.append(isMaximized ? maximizedWord : normalWord);
}

std::optional<WindowPlacement> WindowPlacement::fromText(std::string_view text) {
    const auto words = wordsOf<9>(text);
    if (!words) return {};
    const auto& word = *words;
    const auto width = numberIn(word[2], 1, largest);
    const auto height = numberIn(word[3], 1, largest);
    std::array<std::optional<int>, 4> edges;
    for (std::size_t i = 0; i < edges.size(); ++i)
        edges[i] = numberIn(word[4 + i], 0, thickest);
    const bool hasEdges =
        std::all_of(edges.begin(), edges.end(), [](const auto& edge) { return edge.has_value(); });
    const bool isMaximized = word[8] == maximizedWord;
    if (!width || !height || !hasEdges || (!isMaximized && word[8] != normalWord)) return {};

    WindowPlacement placement{
        {}, {*width, *height}, {*edges[0], *edges[1], *edges[2], *edges[3]}, isMaximized};
    if (word[0] == noPosition && word[1] == noPosition) return placement;
    const auto x = numberIn(word[0], -farthest, farthest);
    const auto y = numberIn(word[1], -farthest, farthest);
    if (!x || !y) return {};
    placement.position = QPoint(*x, *y);
    return placement;
}

WindowPlacement WindowPlacement::fittedTo(const std::vector<QRect>& screens, QSize smallest) const {
    WindowPlacement fitted = *this;
    fitted.size = size.expandedTo(smallest);
    if (screens.empty()) return fitted;
    const QRect wanted(position.value_or(screens.front().topLeft()), fitted.size);
    if (position && areAllOf(wanted + frame, screens)) return fitted;

    const QRect screen = nearestTo(wanted + frame, screens);
    const QRect room = screen - frame;
    fitted.size = fitted.size.boundedTo(room.size()).expandedTo(smallest);
    if (!position) return fitted;
    const auto within = [](int wish, int first, int last) {
        return std::max(first, std::min(wish, last));
    };
    fitted.position =
        QPoint(within(position->x(), room.left(), room.right() + 1 - fitted.size.width()),
               within(position->y(), room.top(), room.bottom() + 1 - fitted.size.height()));
    return fitted;
}

}  // namespace vantor
