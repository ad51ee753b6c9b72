#include "app/window_placement.h"

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
    require(placement->fittedTo({}, smallest).position == placement->position);
    return 0;
}
