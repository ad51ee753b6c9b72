#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>

#include "ui/formatters.h"
#include "ui/shown_text.h"

/// What cards say of figures that are not there.
namespace vantor::CardTexts {

/// Before the first reading: a figure that nobody has asked for yet.
inline QString unknownYet() {
    return QStringLiteral("—");
}

/// A figure that was asked for in vain.
inline QString notPublished() {
    return QStringLiteral("Not published");
}

inline QString temperature(std::optional<double> celsius) {
    return celsius ? Formatters::fixed(*celsius, 0) + QStringLiteral(" °C") : notPublished();
}

inline QString bytes(std::optional<std::uint64_t> count) {
    return count ? Formatters::bytes(*count) : notPublished();
}

/// A text of the machine's, or `otherwise` where it says nothing.
inline QString orElse(const std::string& text, const QString& otherwise) {
    return text.empty() ? otherwise : shownText(text);
}

}  // namespace vantor::CardTexts
