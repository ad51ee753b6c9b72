#pragma once

#include <QWidget>

class QLabel;

namespace vantor {

/// One line of a dialog with its status or an error; assistive technology is notified. Takes its
/// space also while it is empty.
class SaveNotice : public QWidget {
  public:
    enum class Tone { quiet, warning };

    explicit SaveNotice(QWidget* parent = nullptr);

    void say(const QString& text, Tone tone = Tone::quiet);
    void clear() { say({}); }
    QString text() const;

  private:
    QLabel* symbol_;  // owned by this widget, as their parent
    QLabel* label_;
    QString text_;
};

}  // namespace vantor
