#include "app/app_delegate.h"

#include <variant>

namespace vantor {

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() const {
    const auto stored = defaults_->value("showMenuBar");
    const bool* const isShown = stored ? std::get_if<bool>(&*stored) : nullptr;
    return isShown && !*isShown;
}

bool AppDelegate::applicationShouldHandleReopen(bool) const {
    if (versions_.isOperatingSystemAtLeast(13, 0, 0)) return true;
    openLegacyDashboard_();
    return false;
}

}  // namespace vantor
