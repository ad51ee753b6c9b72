#pragma once

#include <QString>

#include <vector>

#include "platform/platform_words.h"

namespace vantor {

/// A subject of the help.
struct HelpSection {
    QString title;
    QString text;

    bool operator==(const HelpSection&) const = default;
};

namespace HelpTexts {

/// What the program is, in one sentence.
QString summary(const PlatformWords& words);

/// The subjects in their order.
std::vector<HelpSection> sections(const PlatformWords& words);

}  // namespace HelpTexts

}  // namespace vantor
