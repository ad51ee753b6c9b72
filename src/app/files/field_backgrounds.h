#pragma once

#include <QObject>
#include <QWidget>

#include <vector>

class QAbstractScrollArea;
class QLineEdit;

namespace vantor {

/// Fields and lists of a dialog on rounded backgrounds, with a ring around the one that has the
/// keyboard: the toolkit's own have borders that are invisible in the dark.
class FieldBackgrounds : public QWidget {
  public:
    /// Behind everything else in `dialog`, which it fills.
    explicit FieldBackgrounds(QWidget* dialog);

    void add(QLineEdit* field);
    void add(QAbstractScrollArea* list);

  protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void adopt(QWidget* part);

    std::vector<QWidget*> parts_;  // of the same dialog
};

}  // namespace vantor
