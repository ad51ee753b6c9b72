#pragma once

#include <QWidget>

#include "ui/theme.h"

namespace vantor {

/// All subjects under their names, on the window's ground, as many beside each other as fit.
class GalleryView : public QWidget {
  public:
    explicit GalleryView(ColorScheme scheme, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    ColorScheme scheme_;
};

}  // namespace vantor
