#pragma once

#include <QWidget>

#include "settings/login_item.h"
#include "ui/components/paragraph.h"
#include "ui/components/toggle_row.h"

namespace vantor {

/// The switch for opening the program at login, and under it, quietly, why it did not do what it
/// was told. Assistive technology is notified of that.
class LoginRowView : public QWidget {
  public:
    static constexpr int outset = ToggleRowView::outset;

    LoginRowView(ToggleRowView::Switch place, std::function<void(bool)> onChange,
                 QWidget* parent = nullptr);

    void show(const LoginState& state);

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
