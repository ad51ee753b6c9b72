#pragma once

#include <memory>
#include <optional>

#include "app/appearance/desktop_appearance.h"
#include "settings/appearance.h"
#include "settings/application_appearance.h"

namespace vantor {

/// Sets the appearance of the whole program: every widget paints in the colour scheme of its
/// palette, our views and the toolkit's menus and dialogs alike, so that one call changes all.
/// Needs the application object; main thread.
///
/// A desktop that wants high contrast gets it in every theme; whether it is dark or light matters
/// to "System" alone. Where the desktop says nothing, "System" is the toolkit's palette.
class QtApplicationAppearance : public ApplicationAppearance {
  public:
    explicit QtApplicationAppearance(std::shared_ptr<DesktopAppearance> desktop = nullptr);

    void followSystem() override;  ///< from now on, also when the desktop changes its own
    void forceDark() override;
    void forceLight() override;

  private:
    void choose(Appearance choice);
    void apply() const;
    void setPalette(Appearance choice) const;

    std::shared_ptr<DesktopAppearance> desktop_;  // null: as if it said nothing
    DesktopLook look_;
    std::optional<Appearance> choice_;  // none before the first
    Subscription observation_;
};

}  // namespace vantor
