#include "app/files/save_notice.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

#include "app/qt_alerts.h"
#include "ui/components/make_child.h"
#include "ui/translate.h"

namespace vantor {

namespace {

constexpr int noticeSymbolSide = 16;
constexpr int noticeLines = 3;

}  // namespace

SaveNotice::SaveNotice(QWidget* parent)
    : QWidget(parent),
      symbol_(makeChild<QLabel>(static_cast<QWidget*>(this))),
      label_(makeChild<QLabel>(static_cast<QWidget*>(this))) {
    auto* const layout = makeLayout<QHBoxLayout>(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(symbol_, 0, Qt::AlignVCenter);
    layout->addWidget(label_, 1, Qt::AlignVCenter);
    symbol_->hide();
    symbol_->setAccessibleName(
        //: for screen readers: the sign beside a warning
        translate("SavePanel", "Warning"));
    label_->setTextFormat(Qt::PlainText);  // a file's name may look like markup
    label_->setWordWrap(true);
    setFixedHeight(fontMetrics().lineSpacing() * noticeLines);
}

void SaveNotice::say(const QString& text, Tone tone) {
    if (text == text_ && symbol_->isHidden() == (tone == Tone::quiet)) return;
    text_ = text;
    symbol_->setPixmap(style()
                           ->standardIcon(QStyle::SP_MessageBoxWarning)
                           .pixmap(QSize(noticeSymbolSide, noticeSymbolSide), devicePixelRatioF()));
    symbol_->setVisible(tone == Tone::warning);
    label_->setText(QtAlerts::breakable(text));
    label_->setAccessibleName(text);
    // Without assistive technology, the toolkit would search the disk for extensions first.
    if (text.isEmpty() || !QAccessible::isActive()) return;
    QAccessibleEvent news(label_, QAccessible::Alert);
    QAccessible::updateAccessibility(&news);
}

QString SaveNotice::text() const {
    return text_;
}

}  // namespace vantor
