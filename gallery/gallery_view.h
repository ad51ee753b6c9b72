#pragma once

#include <QWidget>

#include "ui/drawing/background_view.h"
#include "ui/theme.h"

namespace vantor {

/// All subjects under their names, on the window's background, as many beside each other as fit.
class GalleryView : public BackgroundView {
  public:
    explicit GalleryView(ColorScheme scheme, QWidget* parent = nullptr);

  private:
    ColorScheme scheme_;
};

}  // namespace vantor
