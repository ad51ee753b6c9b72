#include "app/session/app_action.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantor {

namespace {

constexpr std::array<std::pair<AppAction, std::string_view>, 7> actionNames{{
    {AppAction::activate, "activate"},
    {AppAction::pause, "pause"},
    {AppAction::resume, "resume"},
    {AppAction::refresh, "refresh"},
    {AppAction::exportSnapshot, "export"},
    {AppAction::settings, "settings"},
    {AppAction::background, "background"},
}};

}  // namespace

std::string_view nameOf(AppAction action) {
    return std::ranges::find(actionNames, action, &std::pair<AppAction, std::string_view>::first)
        ->second;
}

std::optional<AppAction> actionNamed(std::string_view name) {
    const auto found =
        std::ranges::find(actionNames, name, &std::pair<AppAction, std::string_view>::second);
    return found == actionNames.end() ? std::nullopt : std::optional(found->first);
}

}  // namespace vantor
