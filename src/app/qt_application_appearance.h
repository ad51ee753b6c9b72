#pragma once

#include <QPalette>

#include "settings/application_appearance.h"

namespace vantor {

/// Dresses the whole program: the palette tells every widget which colour scheme to paint in, ours
/// and the toolkit's own menus and dialogs alike.
class QtApplicationAppearance : public ApplicationAppearance {
  public:
    /// Remembers the palette that the desktop has given the program. Needs the application object.
    QtApplicationAppearance();

    void followSystem() override;
    void forceDark() override;
    void forceLight() override;

  private:
    QPalette systemPalette_;
};

}  // namespace vantor
