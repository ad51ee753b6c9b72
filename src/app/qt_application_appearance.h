#pragma once

#include "settings/application_appearance.h"

namespace vantor {

/// Dresses the whole program: the palette tells every widget which colour scheme to paint in, ours
/// and the toolkit's own menus and dialogs alike. Needs the application object.
class QtApplicationAppearance : public ApplicationAppearance {
  public:
    void followSystem() override;  ///< from now on, also when the desktop changes its own
    void forceDark() override;
    void forceLight() override;
};

}  // namespace vantor
