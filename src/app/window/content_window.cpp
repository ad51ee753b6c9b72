#include "app/window/content_window.h"

#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>

#include "app/window/window_activation.h"
#include "ui/components/make_child.h"
#include "ui/product_icon.h"

namespace vantor {

ContentWindow::ContentWindow(const QString& title, std::unique_ptr<QWidget> content)
    : QWidget(nullptr, Qt::Window), content_(content.get()) {
    setWindowTitle(title);
    setWindowIcon(productIcon());
    const QSize smallest = content->minimumSizeHint();
    const QSize ideal = content->sizeHint();
    setMinimumSize(smallest);
    setAttribute(Qt::WA_NoSystemBackground);  // the content paints every pixel
    auto* layout = makeLayout<QVBoxLayout>(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content.release());
    const QSize room = screen()->availableSize() - QSize(16, 48);  // without a frame
    resize(ideal.boundedTo(room).expandedTo(smallest));
}

void ContentWindow::open(const QString& activationToken) {
    if (!wasShown_) {
        wasShown_ = true;
        const QRect room = screen()->availableGeometry();
        move(room.center() - rect().center());
    }
    bringToFront(*this, activationToken);
    content_->setFocus();
}

void ContentWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

}  // namespace vantor
