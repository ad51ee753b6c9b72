#pragma once

#include <QSize>
#include <QString>
#include <QWidget>

#include <memory>

namespace vantor {

/// A window around one view: opens centred on its screen at the content's size, as far as that
/// fits, and is kept when it is closed.
class ContentWindow : public QWidget {
  public:
    ContentWindow(const QString& title, std::unique_ptr<QWidget> content);

    QWidget& content() { return *content_; }

    /// Shows it, or brings it to the front; the token allows that, where there is one.
    void open(const QString& activationToken = {});

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* content_;  // owned by this widget, as its child
    bool wasShown_ = false;
};

}  // namespace vantor
