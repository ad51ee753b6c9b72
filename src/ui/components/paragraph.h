#pragma once

#include <QLabel>

#include "ui/components/text_line.h"

namespace vantor {

/// Running text in the theme's colours that breaks into lines and can be marked with the mouse and
/// copied. It handles no key but the one for copying, so that keys scroll the view around it.
class ParagraphView : public QLabel {
  public:
    ParagraphView(const QString& text, double size, QFont::Weight weight, TextLineView::Tone tone,
                  QWidget* parent = nullptr);

  protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void adoptFont();
    void adoptColor();

    double size_;
    QFont::Weight weight_;
    TextLineView::Tone tone_;
};

}  // namespace vantor
