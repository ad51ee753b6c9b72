#pragma once

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantor {

/// The place and size of a window, in device-independent pixels.
struct WindowPlacement {
    /// The upper left corner of what the frame encloses; none where windows cannot know it.
    std::optional<QPoint> position;
    QSize size;      ///< of what the frame encloses; while maximised, of the window before that
    QMargins frame;  ///< what the window manager puts around it
    bool isMaximized = false;

    bool operator==(const WindowPlacement&) const = default;

    /// As one line of text: "100 80 1280 820 1 24 1 1 maximized"; "- -" for no position.
    std::string text() const;

    /// Absent for a text that is not exactly of that form, or with sizes that no window has.
    static std::optional<WindowPlacement> fromText(std::string_view text);

    /// The nearest to it that can be seen and reached on screens with these available areas (which
    /// exclude panels): where it is if all of it is on screens, else moved into the nearest one
    /// and made as small as that is, but never smaller than `smallest`. What does not fit even so
    /// shows its upper left corner, by which it can be moved.
    WindowPlacement fittedTo(const std::vector<QRect>& screens, QSize smallest) const;
};

}  // namespace vantor
