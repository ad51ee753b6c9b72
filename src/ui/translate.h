#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <concepts>
#include <limits>
#include <utility>

namespace vantor {

/// `text`, which is English, in the language of the catalogue that the program has loaded, or as it
/// is. The translators find it under `context`; `comment` tells equal texts of one context apart.
///
/// With a count `n`, "%n" or "%Ln" (in the user's digits) stands for it. English needs no catalogue
/// for its plural: "sample(s)" and "process(es)" lose their brackets, or what is in them for one.
///
/// Called while something is shown, never while the program is loaded; needs no application object
/// to be there, but has no translations without one.
QString translate(const char* context, const char* text, const char* comment = nullptr, int n = -1);

/// A count as translate takes it: what does not fit has the plural of large numbers anyway.
template <std::integral Count>
int countForPlural(Count count) {
    constexpr int most = std::numeric_limits<int>::max();
    if (std::cmp_less(count, 0)) return 0;
    return std::cmp_greater(count, most) ? most : static_cast<int>(count);
}

/// "one, two, three", divided as the language divides what is listed.
QString listed(const QStringList& texts);

}  // namespace vantor
