#pragma once

#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <optional>

#include "ui/components/capsule_button.h"

class QMenu;

namespace vantor {

/// The index of `value` in `choices`, if it is one of them.
template <class Choices, class Value>
std::optional<std::size_t> placeAmong(const Choices& choices, const Value& value) {
    const auto found = std::find(choices.begin(), choices.end(), value);
    if (found == choices.end()) return std::nullopt;
    return static_cast<std::size_t>(found - choices.begin());
}

/// A button that offers a few choices in a menu; its title is the current one. Its accessible name
/// is its label and its title.
class MenuPickerView : public CapsuleButtonView {
  public:
    /// `onChoose` is called for the user's choices only.
    MenuPickerView(QString label, const QStringList& choices,
                   const std::function<void(std::size_t)>& onChoose, QWidget* parent = nullptr);

    /// Shows `text` and ticks that choice; none where the current value is not one of the choices.
    void show(const QString& text, std::optional<std::size_t> choice);

    QMenu& menu() { return *menu_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool isSymbolTrailing() const override { return true; }

  private:
    void open();

    QString label_;
    QMenu* menu_;  // owned by this widget, as its child
};

}  // namespace vantor
