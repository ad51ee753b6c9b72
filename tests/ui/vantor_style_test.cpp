#include "ui/vantor_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QIcon>
#include <QPushButton>

#include "ui/product_icon.h"
#include "ui/rendering.h"
#include "ui/theme.h"

namespace vantor::vantor_style_test {
namespace {

constexpr QRectF everywhere(0, 0, 48, 48);

class VantorStyleTest : public testing::Test {
  protected:
    void TearDown() override {
        QApplication::setPalette(paletteOf(ColorScheme::dark));
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    QIcon icon(QStyle::StandardPixmap which) const {
        return style.standardIcon(which, nullptr, nullptr);
    }
    QImage drawn(QStyle::StandardPixmap which, QIcon::Mode mode = QIcon::Normal) const {
        return icon(which).pixmap(QSize(48, 48), mode).toImage();
    }

    VantorStyle style;
};

TEST_F(VantorStyleTest, ButtonsOfDialogsHaveNoPictures) {
    QDialogButtonBox box(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    box.setStyle(&style);
    box.setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (const QAbstractButton* const button : box.buttons())
        EXPECT_TRUE(button->icon().isNull());
}

TEST_F(VantorStyleTest, AnAlertHasItsColour) {
    EXPECT_GT(pixelsLike(drawn(QStyle::SP_MessageBoxCritical), everywhere, VantorTheme::red()), 40);
    EXPECT_GT(pixelsLike(drawn(QStyle::SP_MessageBoxWarning), everywhere, VantorTheme::orange()),
              40);
}

TEST_F(VantorStyleTest, EveryPictureOfAFileDialogIsASymbolInTheColourOfText) {
    for (const auto which :
         {QStyle::SP_ArrowBack, QStyle::SP_ArrowForward, QStyle::SP_FileDialogToParent,
          QStyle::SP_FileDialogNewFolder, QStyle::SP_FileDialogListView,
          QStyle::SP_FileDialogDetailedView, QStyle::SP_FileIcon, QStyle::SP_ComputerIcon,
          QStyle::SP_DriveHDIcon}) {
        for (const auto scheme : {ColorScheme::dark, ColorScheme::light}) {
            const QIcon kept = icon(which);
            QApplication::setPalette(paletteOf(scheme));
            const QColor text = QApplication::palette().color(QPalette::ButtonText);
            const QImage image = kept.pixmap(QSize(48, 48)).toImage();
            EXPECT_GT(pixelsLike(image, everywhere, text), 30) << which;
        }
    }
    EXPECT_GT(pixelsLike(drawn(QStyle::SP_DirIcon), everywhere, VantorTheme::blue()), 40);
}

TEST_F(VantorStyleTest, AChosenOneAndADisabledOneLookLikeTheirText) {
    const QPalette palette = QApplication::palette();
    EXPECT_GT(pixelsLike(drawn(QStyle::SP_DirIcon, QIcon::Selected), everywhere,
                         palette.color(QPalette::HighlightedText)),
              40);
    EXPECT_GT(pixelsLike(drawn(QStyle::SP_ArrowBack, QIcon::Disabled), everywhere,
                         palette.color(QPalette::Disabled, QPalette::ButtonText)),
              30);
}

TEST_F(VantorStyleTest, BackAndForwardAreMirrored) {
    const QImage back = drawn(QStyle::SP_ArrowBack);
    const QImage forward = drawn(QStyle::SP_ArrowForward);
    EXPECT_NE(back, forward);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(drawn(QStyle::SP_ArrowBack), forward);
    EXPECT_EQ(drawn(QStyle::SP_ArrowForward), back);
}

TEST_F(VantorStyleTest, AFieldIsClearedWithTheProgramsOwnSymbol) {
    const QColor text = QApplication::palette().color(QPalette::ButtonText);
    EXPECT_GT(pixelsLike(drawn(QStyle::SP_LineEditClearButton), everywhere, text), 30);
}

TEST_F(VantorStyleTest, AMenuBarThatIsTooNarrowGoesOnWithTheProgramsOwnSymbol) {
    const QImage more = drawn(QStyle::SP_ToolBarHorizontalExtensionButton);
    EXPECT_EQ(more, drawn(QStyle::SP_ArrowForward));
}

TEST_F(VantorStyleTest, TheProductsIconIsItsTileAtEachSize) {
    for (const int side : {16, 24, 32, 48, 64}) {
        const QImage tile = productIcon().pixmap(QSize(side, side), 1.0).toImage();
        EXPECT_EQ(tile.size(), QSize(side, side));
        EXPECT_GT(pixelsLike(tile, tile.rect(), Qt::white), side / 10) << side;
        EXPECT_EQ(tile.pixelColor(side / 4, side / 4).alpha(), 255) << side;
    }
    EXPECT_EQ(productIcon().availableSizes().size(), 5);
}

TEST_F(VantorStyleTest, WhatItHasNoSymbolForIsTheToolkitsOwn) {
    EXPECT_FALSE(icon(QStyle::SP_TrashIcon).isNull());
}

}  // namespace
}  // namespace vantor::vantor_style_test
