#pragma once

#include <QString>

#include "ui/components/painted_view.h"

namespace vantor {

/// A quiet line that says that the preferences are not saved, and why; hidden while they are.
/// Assistive technology is notified when it appears.
class NotSavedView : public PaintedView {
  public:
    explicit NotSavedView(QWidget* parent = nullptr);

    /// `reason`, a sentence, becomes "Not saved: …"; an empty one hides the line.
    void show(const QString& reason);
    const QString& text() const { return text_; }

    QAccessible::Role accessibleRole() const override { return QAccessible::AlertMessage; }
    QString accessibleLabel() const override { return text_; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QString text_;
};

}  // namespace vantor
