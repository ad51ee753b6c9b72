#include <algorithm>
#include <vector>

#include "app/window/window_placement.h"

#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vantor;
    using fuzz::require;
    const auto placement = WindowPlacement::fromText(fuzz::textOf(data, size));
    if (!placement) return 0;
    require(WindowPlacement::fromText(placement->text()) == placement);
    require(!placement->size.isEmpty() && placement->size.width() <= 32'768 &&
            placement->size.height() <= 32'768);
    const QMargins& frame = placement->frame;
    for (const int edge : {frame.left(), frame.top(), frame.right(), frame.bottom()})
        require(edge >= 0 && edge <= 512);

    // Wherever it was, some of it is on the screen that there is.
    const QRect screen(-200, 100, 1280, 800);
    const QSize smallest(320, 240);
    const WindowPlacement fitted = placement->fittedTo({screen}, smallest);
    require(fitted.position.has_value() == placement->position.has_value());
    require(fitted.size.width() >= smallest.width() && fitted.size.height() >= smallest.height());
    if (fitted.position) require(screen.intersects(QRect(*fitted.position, fitted.size)));
    const std::vector<QRect> screens{screen, QRect(1080, 100, 800, 600)};
    const WindowPlacement onOne = placement->fittedTo(screens, smallest);
    require(!onOne.position || std::ranges::any_of(screens, [&](const QRect& each) {
        return each.intersects(QRect(*onOne.position, onOne.size));
    }));
    require(placement->fittedTo({}, smallest).position == placement->position);
    return 0;
}
