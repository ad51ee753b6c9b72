#include "ui/explorer/process_search.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "ui/shown_text.h"

namespace vantor {

namespace {

/// Letters that are shown as they are.
bool isPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= 0x20 && c <= 0x7E; });
}

constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// In these languages the capital of i is not I.
bool hasDotlessI(const QLocale& locale) {
    return locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
}

}  // namespace

QString ProcessSearch::folded(const QString& text, const QLocale& locale) {
    QString result = locale.toLower(text).normalized(QString::NormalizationForm_D).toCaseFolded();
    result.removeIf([](QChar c) { return c.category() == QChar::Mark_NonSpacing; });
    return result;
}

ProcessSearch::ProcessSearch(const QString& query, const QLocale& locale)
    : locale_(locale), query_(query.toStdString()), folded_(folded(query, locale)) {
    // An accent alone folds to nothing, which every text contains.
    if (folded_.isEmpty()) folded_ = query;
    if (isPlain(query_) && !hasDotlessI(locale)) plain_ = folded_.toStdString();
}

bool ProcessSearch::matches(const ProcessStats& process) const {
    if (isIn(process.name.string()) || isIn(process.command.string())) return true;
    std::array<char, 16> digits{};
    const char* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), process.pid).ptr;
    return std::string_view(digits.data(), end).find(query_) != std::string_view::npos;
}

bool ProcessSearch::isIn(std::string_view text) const {
    // Nearly all names are plain, and there may be thousands at each refresh.
    if (!plain_.empty() && isPlain(text)) {
        const auto found = std::search(text.begin(), text.end(), plain_.begin(), plain_.end(),
                                       [](char a, char b) { return lowered(a) == b; });
        return found != text.end();
    }
    const QString whole = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (folded(whole, locale_).contains(folded_)) return true;
    // What is on the screen can be typed, too.
    const QString shown = shownText(whole);
    return shown != whole && folded(shown, locale_).contains(folded_);
}

}  // namespace vantor
