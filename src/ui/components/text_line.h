#pragma once

#include <QString>

#include "ui/components/painted_view.h"
#include "ui/typography.h"

namespace vantor {

/// One line of text with digits of equal width, cut with an ellipsis where it does not fit.
class TextLineView : public PaintedView {
  public:
    enum class Tone { primary, secondary };

    TextLineView(QString text, double size, QFont::Weight weight, Tone tone,
                 QWidget* parent = nullptr);

    void show(const QString& text);
    /// Left means leading: mirrored where the language is read from right to left.
    void setAlignment(Qt::Alignment alignment);
    const QString& text() const { return text_; }

    QString accessibleLabel() const override { return text_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString text_;
    double size_;
    QFont::Weight weight_;
    Tone tone_;
    Qt::Alignment alignment_ = Qt::AlignLeft;
};

/// One that names what follows it.
class HeadingView : public TextLineView {
  public:
    HeadingView(const QString& text, double size, QFont::Weight weight, QWidget* parent = nullptr)
        : TextLineView(text, size, weight, Tone::primary, parent) {}

    QAccessible::Role accessibleRole() const override { return QAccessible::Heading; }
};

}  // namespace vantor
