#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "ui/components/metric_row.h"
#include "ui/formatters.h"
#include "ui/shown_text.h"
#include "ui/translate.h"

/// What cards show for missing figures.
namespace vantor::CardTexts {

/// Before the first reading: a figure that has not been read yet.
inline QString unknownYet() {
    return QStringLiteral("—");
}

/// A figure that was read and is not available.
inline QString notPublished() {
    return
        //: a figure that the machine does not tell
        translate("CardTexts", "Not published");
}

inline std::optional<QString> temperature(std::optional<double> celsius) {
    if (!celsius) return std::nullopt;
    return
        //: a temperature
        translate("CardTexts", "%1 °C").arg(Formatters::fixed(*celsius, 0));
}

inline std::optional<QString> bytes(std::optional<std::uint64_t> count) {
    if (!count) return std::nullopt;
    return Formatters::bytes(*count);
}

/// A text of the machine's; absent where it is empty.
inline std::optional<QString> known(const std::string& text) {
    if (text.empty()) return std::nullopt;
    return shownText(text);
}

/// A row with a figure, or with the words for its absence.
inline MetricRow row(const QString& label, const std::optional<QString>& figure,
                     const QString& absence, std::optional<QColor> color) {
    return {label, figure.value_or(absence), std::move(color), !figure};
}

}  // namespace vantor::CardTexts
