#pragma once

#include <QWidget>

#include "ui/components/paragraph.h"
#include "ui/components/toggle_row.h"

namespace vantor {

/// A switch, and under it, quietly, why it does not do what it says. Assistive technology is
/// notified of that.
class NotedToggleRow : public QWidget {
  public:
    static constexpr int outset = ToggleRowView::outset;

    NotedToggleRow(const QString& label, ToggleRowView::Switch place,
                   std::function<void(bool)> onChange, QWidget* parent = nullptr);

    void show(bool isOn) { toggle_->show(isOn); }
    void tell(const QString& problem);  ///< empty for none

    ToggleRowView& toggle() { return *toggle_; }
    ParagraphView& problem() { return *problem_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void makeRoomForProblem();

    ToggleRowView* toggle_;  // both owned by this widget, as its children
    ParagraphView* problem_;
};

}  // namespace vantor
