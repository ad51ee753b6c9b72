#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

#include "ui/formatters.h"
#include "ui/shown_text.h"

/// What cards show for missing figures.
namespace vantor::CardTexts {

/// Before the first reading: a figure that has not been read yet.
inline QString unknownYet() {
    return QStringLiteral("—");
}

/// A figure that was read and is not available.
inline QString notPublished() {
    return QStringLiteral("Not published");
}

inline QString temperature(std::optional<double> celsius) {
    return celsius ? Formatters::fixed(*celsius, 0) + QStringLiteral(" °C") : notPublished();
}

inline QString bytes(std::optional<std::uint64_t> count) {
    return count ? Formatters::bytes(*count) : notPublished();
}

/// A text of the machine's, or `otherwise` where it is empty.
inline QString orElse(const std::string& text, const QString& otherwise) {
    return text.empty() ? otherwise : shownText(text);
}

}  // namespace vantor::CardTexts
