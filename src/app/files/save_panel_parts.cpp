#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>

#include <initializer_list>

#include "app/files/field_backgrounds.h"
#include "app/files/save_location.h"
#include "app/files/save_panel.h"
#include "app/qt_alerts.h"
#include "ui/components/make_child.h"
#include "ui/translate.h"

/// The panel's widgets.
namespace vantor {

namespace {

constexpr int savePanelMargin = 16;
constexpr int savePanelGap = 10;

QLabel* makeLabel(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* const label = makeChild<QLabel>(parent, text);
    label->setBuddy(buddy);
    label->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    return label;
}

QToolButton* makeTool(QStyle::StandardPixmap icon, const QString& text, QWidget* parent) {
    auto* const button = makeChild<QToolButton>(parent);
    button->setIcon(button->style()->standardIcon(icon));
    button->setToolTip(text);
    button->setAccessibleName(text);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setAutoRaise(true);
    return button;
}

}  // namespace

void SavePanel::build() {
    QWidget* const self = this;
    setWindowTitle(request_.title);
    name_ = makeChild<QLineEdit>(self, request_.proposedName);
    name_->setObjectName(QStringLiteral("name"));
    name_->selectAll();
    places_ = makeChild<QListWidget>(self);
    places_->setAccessibleName(
        //: for screen readers: the list of well-known folders
        translate("SavePanel", "Places"));
    places_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_ = makeChild<FolderView>(
        self, FolderView::Actions{[this](const FolderEntry& entry) { choose(entry); },
                                  [this](const FolderEntry& entry) { enter(entry); }});
    notice_ = makeChild<SaveNotice>(self);
    auto* const buttons = makeChild<QDialogButtonBox>(self);
    save_ = buttons->addButton(
        //: a button; the letter behind & is pressed together with Alt
        translate("SavePanel", "&Save"), QDialogButtonBox::AcceptRole);
    save_->setDefault(true);
    QPushButton* const cancel = buttons->addButton(QDialogButtonBox::Cancel);
    cancel->setAutoDefault(false);

    auto* const grid = makeLayout<QGridLayout>(this);
    grid->setContentsMargins(savePanelMargin, savePanelMargin, savePanelMargin, savePanelMargin);
    grid->setSpacing(savePanelGap);
    QWidget* const folderLine = makeFolderLine();
    grid->addWidget(makeLabel(
                        //: of the file; the letter behind & is pressed together with Alt
                        translate("SavePanel", "&Name:"), name_, this),
                    0, 0);
    grid->addWidget(name_, 0, 1);
    grid->addWidget(makeLabel(
                        //: the letter behind & is pressed together with Alt
                        translate("SavePanel", "&Folder:"), folder_, this),
                    1, 0);
    grid->addWidget(folderLine, 1, 1);
    grid->addWidget(places_, 2, 0);
    grid->addWidget(list_, 2, 1);
    auto* const last = makeInnerLayout<QHBoxLayout>();
    last->setSpacing(savePanelMargin);
    last->addWidget(notice_, 1);
    last->addWidget(buttons);
    grid->addLayout(last, 3, 0, 1, 2);
    auto* const backgrounds = makeChild<FieldBackgrounds>(self);
    for (QLineEdit* const field : {name_, folder_})
        backgrounds->add(field);
    backgrounds->add(places_);
    backgrounds->add(list_);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(2, 1);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { save(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    QWidget* before = name_;
    for (QWidget* const next :
         std::initializer_list<QWidget*>{folder_, up_, newFolder_, places_, list_, save_, cancel}) {
        setTabOrder(before, next);
        before = next;
    }
    makeRoom();
    name_->setFocus();
}

QWidget* SavePanel::makeFolderLine() {
    auto* const line = makeChild<QWidget>(static_cast<QWidget*>(this));
    folder_ = makeChild<QLineEdit>(line);
    folder_->setObjectName(QStringLiteral("folder"));
    up_ = makeTool(QStyle::SP_FileDialogToParent,
                   //: a button; Alt+Up is what can be pressed instead
                   translate("SavePanel", "Parent folder (Alt+Up)"), line);
    newFolder_ = makeTool(QStyle::SP_FileDialogNewFolder,
                          //: a button
                          translate("SavePanel", "New folder"), line);
    newFolder_->setVisible(request_.mayCreateFolders);
    auto* const layout = makeLayout<QHBoxLayout>(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(savePanelGap / 2);
    layout->addWidget(folder_, 1);
    const int side = fontMetrics().height() + savePanelGap;
    for (QToolButton* const button : {up_, newFolder_}) {
        button->setFixedSize(side, side);
        layout->addWidget(button);
    }
    return line;
}

void SavePanel::connectParts() {
    connect(name_, &QLineEdit::textEdited, this, [this] { edited(); });
    connect(folder_, &QLineEdit::textEdited, this, [this] {
        starts_.clear();
        edited();
    });
    connect(folder_, &QLineEdit::returnPressed, this, [this] { goTo(currentFolder()); });
    connect(up_, &QToolButton::clicked, this, [this] { goUp(); });
    connect(newFolder_, &QToolButton::clicked, this, [this] { askForNewFolder(); });
    const auto visit = [this](const QListWidgetItem* place) {
        const QByteArray folder = place->data(Qt::UserRole).toByteArray();
        goTo(folder.toStdString());
    };
    connect(places_, &QListWidget::itemClicked, this, visit);
    connect(places_, &QListWidget::itemActivated, this, visit);
    auto* const parentFolder =
        makeChild<QShortcut>(static_cast<QWidget*>(this), QKeySequence(Qt::ALT | Qt::Key_Up));
    connect(parentFolder, &QShortcut::activated, this, [this] { goUp(); });
}

void SavePanel::makeRoom() {
    const QFontMetrics text = fontMetrics();
    places_->setFixedWidth(text.averageCharWidth() * 20);
    const QSize size(text.averageCharWidth() * 92, text.height() * 26);
    resize(size.boundedTo(screen()->availableSize() - QSize(16, 48)));
}

void SavePanel::askToReplace(const std::filesystem::path& file) {
    notice_->clear();
    auto* const box = makeChild<QMessageBox>(static_cast<QWidget*>(this));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setIcon(QMessageBox::Warning);
    box->setTextFormat(Qt::PlainText);
    box->setWindowTitle(
        //: the title of a box
        translate("SavePanel", "Replace File"));
    box->setText(QtAlerts::breakable(
        //: %1 is the name of a file
        translate("SavePanel", "\"%1\" already exists. Do you want to replace it?")
            .arg(shownPath(file.filename()))));
    QPushButton* const replace = box->addButton(
        //: a button; the letter behind & is pressed together with Alt
        translate("SavePanel", "&Replace"), QMessageBox::AcceptRole);
    QPushButton* const keep = box->addButton(QMessageBox::Cancel);
    box->setDefaultButton(keep);
    box->setEscapeButton(keep);
    connect(box, &QMessageBox::finished, this, [this, box, replace, file] {
        if (box->clickedButton() == replace) finish(file);
    });
    box->QDialog::open();
}

}  // namespace vantor
