#include "e2e/spoken_program.h"

#include <algorithm>
#include <array>

#include "e2e/desktop.h"

namespace vantor {

namespace {

constexpr std::array cards{"CPU",     "Memory", "Network",         "Graphics",
                           "Storage", "System", "Process Explorer"};

}  // namespace

std::optional<AccessibleElement> SpokenProgram::find(const char* role, const char* begins) const {
    const auto elements = client_.walk(QStringLiteral("vantor"));
    const auto found = std::ranges::find_if(elements, [&](const AccessibleElement& element) {
        return element.role == QLatin1StringView(role) &&
               element.name.startsWith(QLatin1StringView(begins));
    });
    return found == elements.end() ? std::nullopt : std::optional(*found);
}

bool SpokenProgram::finds(const char* name) const {
    return std::ranges::any_of(client_.walk(QStringLiteral("vantor")), [&](const auto& element) {
        return element.name == QLatin1StringView(name) && client_.isShowing(element);
    });
}

bool SpokenProgram::act(const char* role, const char* begins, const char* action) const {
    return eventually(
        [&] {
            const auto element = find(role, begins);
            return element && client_.act(*element, action);
        },
        20'000);
}

bool SpokenProgram::shows(const char* role, const char* begins) const {
    const auto element = find(role, begins);
    return element && client_.isShowing(*element);
}

bool SpokenProgram::hasAnsweredOnAllCards() const {
    const auto elements = client_.walk(QStringLiteral("vantor"));
    const auto says = [&](QLatin1StringView name, QLatin1StringView text) {
        return std::ranges::any_of(elements, [&](const AccessibleElement& element) {
            return element.name == name && !element.description.isEmpty() &&
                   element.description.contains(text);
        });
    };
    return std::ranges::all_of(cards,
                               [&](const char* card) {
                                   return says(QLatin1StringView(card), QLatin1StringView(""));
                               }) &&
           says(QLatin1StringView("CPU Load"), QLatin1StringView("%")) &&
           says(QLatin1StringView("Memory"), QLatin1StringView(" installed"));
}

}  // namespace vantor
