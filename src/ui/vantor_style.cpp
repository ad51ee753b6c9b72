#include "ui/vantor_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include <memory>
#include <optional>
#include <utility>

#include "ui/symbols.h"
#include "ui/theme.h"

namespace vantor {

namespace {

struct Symbol {
    QString name;
    std::optional<QColor> color;  ///< none: that of text
};

Symbol symbolOf(QStyle::StandardPixmap icon) {
    const bool isMirrored = QApplication::layoutDirection() == Qt::RightToLeft;
    const QString left = QStringLiteral("chevron.left");
    const QString right = QStringLiteral("chevron.right");
    switch (icon) {
        case QStyle::SP_MessageBoxCritical:
            return {QStringLiteral("exclamationmark.octagon"), VantorTheme::red()};
        case QStyle::SP_MessageBoxWarning:
            return {QStringLiteral("exclamationmark.triangle"), VantorTheme::orange()};
        case QStyle::SP_MessageBoxInformation:
            return {QStringLiteral("info.circle"), VantorTheme::blue()};
        case QStyle::SP_MessageBoxQuestion:
            return {QStringLiteral("questionmark.circle"), VantorTheme::blue()};
        case QStyle::SP_ArrowBack:
        case QStyle::SP_FileDialogBack:
            return {isMirrored ? right : left, {}};
        case QStyle::SP_ArrowForward:
            return {isMirrored ? left : right, {}};
        case QStyle::SP_FileDialogToParent:
            return {QStringLiteral("arrow.up"), {}};
        case QStyle::SP_FileDialogNewFolder:
            return {QStringLiteral("folder.badge.plus"), {}};
        case QStyle::SP_FileDialogListView:
            return {QStringLiteral("square.grid.2x2"), {}};
        case QStyle::SP_FileDialogDetailedView:
            return {QStringLiteral("list.bullet"), {}};
        case QStyle::SP_DirIcon:
        case QStyle::SP_DirOpenIcon:
        case QStyle::SP_DirClosedIcon:
        case QStyle::SP_DirLinkIcon:
        case QStyle::SP_DirHomeIcon:
            return {QStringLiteral("folder"), VantorTheme::blue()};
        case QStyle::SP_FileIcon:
        case QStyle::SP_FileLinkIcon:
            return {QStringLiteral("doc"), {}};
        case QStyle::SP_ComputerIcon:
            return {QStringLiteral("desktopcomputer"), {}};
        case QStyle::SP_DriveHDIcon:
            return {QStringLiteral("internaldrive"), {}};
        // For its own the toolkit first searches all icon themes on the disk.
        case QStyle::SP_LineEditClearButton:
            return {QStringLiteral("xmark.circle"), {}};
        // A menu bar asks for it at once, and for its own the toolkit loads its plugins for every
        // picture format.
        case QStyle::SP_ToolBarHorizontalExtensionButton:
            return {isMirrored ? left : right, {}};
        default:
            return {};
    }
}

/// Draws the symbol anew each time, and so follows the palette.
class SymbolEngine : public QIconEngine {
  public:
    explicit SymbolEngine(Symbol symbol) : symbol_(std::move(symbol)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const QPalette palette = QApplication::palette();
        QColor color = palette.color(QPalette::Active, QPalette::ButtonText);
        if (mode == QIcon::Selected) {
            color = palette.color(QPalette::Active, QPalette::HighlightedText);
        } else if (mode == QIcon::Disabled) {
            color = palette.color(QPalette::Disabled, QPalette::ButtonText);
        } else if (symbol_.color) {
            color = *symbol_.color;
        }
        Symbols::draw(*painter, rect, symbol_.name, color);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, pixmap.rect(), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override {
        return std::make_unique<SymbolEngine>(symbol_).release();
    }

  private:
    Symbol symbol_;
};

constexpr int menuBarSideMargin = 14;
constexpr int menuBarLineMargin = 2;
constexpr QSize menuBarItemPadding(8, 4);
constexpr double menuBarItemCorner = 6;
constexpr QColor menuBarItemMark(128, 128, 128, 60);

void drawMenuBarItem(const QStyleOptionMenuItem& item, QPainter& painter, const QStyle& style) {
    if (item.state & (QStyle::State_Selected | QStyle::State_Sunken)) {
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(menuBarItemMark);
        painter.drawRoundedRect(QRectF(item.rect), menuBarItemCorner, menuBarItemCorner);
        painter.restore();
    }
    int flags = Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine;
    if (!style.styleHint(QStyle::SH_UnderlineShortcut, &item)) flags |= Qt::TextHideMnemonic;
    style.drawItemText(&painter, item.rect, flags, item.palette, item.state & QStyle::State_Enabled,
                       item.text, QPalette::WindowText);
}

}  // namespace

VantorStyle::VantorStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int VantorStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* returnData) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon VantorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    Symbol symbol = symbolOf(icon);
    if (symbol.name.isEmpty()) return QProxyStyle::standardIcon(icon, option, widget);
    return QIcon(std::make_unique<SymbolEngine>(std::move(symbol)).release());  // takes ownership
}

void VantorStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuBarEmptyArea) return;
    if (element == CE_MenuBarItem && item) {
        drawMenuBarItem(*item, *painter, *this);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void VantorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    if (element == PE_PanelMenuBar) return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int VantorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    switch (metric) {
        case PM_MenuBarHMargin:
            return menuBarSideMargin;
        case PM_MenuBarVMargin:
            return menuBarLineMargin;
        case PM_MenuBarItemSpacing:
        case PM_MenuBarPanelWidth:
            return 0;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize VantorStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const {
    if (type == CT_MenuBarItem) return contents + 2 * menuBarItemPadding;
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

}  // namespace vantor
