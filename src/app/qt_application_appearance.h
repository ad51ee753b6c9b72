#pragma once

#include "settings/application_appearance.h"

namespace vantor {

/// Sets the appearance of the whole program: every widget paints in the colour scheme of its
/// palette, our views and the toolkit's menus and dialogs alike, so that one call changes all.
/// Needs the application object.
class QtApplicationAppearance : public ApplicationAppearance {
  public:
    void followSystem() override;  ///< from now on, also when the desktop changes its own
    void forceDark() override;
    void forceLight() override;
};

}  // namespace vantor
