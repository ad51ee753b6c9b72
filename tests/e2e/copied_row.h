#pragma once

#include <functional>

#include "e2e/desktop.h"

namespace vantor {

/// Copies the first row of the explorer with the keyboard and puts it into the filter, which finds
/// no process of such a name; the filter has to have the focus. Returns whether `findsNothing` has
/// come true. Tried again when it has not: the row's process may have ended before it was copied.
inline bool pastesACopiedRow(const Desktop& desktop, const std::function<bool()>& findsNothing) {
    for (int attempt = 0; attempt < 4; ++attempt) {
        for (const char* const key : {"Tab", "Tab", "Down", "ctrl+c", "ctrl+f", "ctrl+v"})
            desktop.key(QString::fromLatin1(key));
        if (eventually(findsNothing)) return true;
        desktop.key(QStringLiteral("ctrl+f"));
    }
    return false;
}

}  // namespace vantor
