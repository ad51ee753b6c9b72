#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleFactory>
#include <QToolButton>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/files/dialog_desk.h"
#include "app/files/fake_questions.h"
#include "app/files/save_location.h"
#include "app/files/save_panel.h"
#include "ui/contrast.h"
#include "ui/gestures.h"
#include "ui/rendering.h"
#include "ui/vantor_style.h"

/// Each answer of the disk comes when the test says so: one that hangs is one that never does.

namespace vantor {

class SavePanelTest : public testing::Test {
  protected:
    void open(const std::filesystem::path& folder = {}) {
        panel =
            std::make_unique<SavePanel>(SavePanel::Request{QStringLiteral("Export System Snapshot"),
                                                           QStringLiteral("Vantor-1.json"),
                                                           QStringLiteral("json"), true, folder},
                                        manual.questions, nullptr);
        panel->show();
    }
    void openAndAnswer(const std::filesystem::path& folder = {}) {
        open(folder);
        manual.answerAll();
    }
    void makeFolder(const char* name) const { QDir(desk.home()).mkpath(QString::fromUtf8(name)); }
    void makeFile(const char* name) const {
        ASSERT_TRUE(QFile(desk.path(name)).open(QIODevice::WriteOnly));
    }

    QLineEdit& name() const { return *panel->findChild<QLineEdit*>(QStringLiteral("name")); }
    QLineEdit& folder() const { return *panel->findChild<QLineEdit*>(QStringLiteral("folder")); }
    /// Those are of no class that the toolkit's own search knows.
    template <class Part>
    Part& part() const {
        for (QWidget* const each : panel->findChildren<QWidget*>()) {
            if (auto* const found = dynamic_cast<Part*>(each)) return *found;
        }
        throw std::logic_error("the panel has no such part");
    }
    FolderView& list() const { return part<FolderView>(); }
    std::string notice() const { return utf8(part<SaveNotice>().text()); }
    QPushButton& saveButton() const { return button(*panel, u"&Save"); }

    static QPushButton& button(QWidget& window, QStringView text) {
        for (QPushButton* const each : window.findChildren<QPushButton*>()) {
            if (each->text() == text) return *each;
        }
        ADD_FAILURE() << "no button " << text.toString().toStdString();
        return *window.findChild<QPushButton*>();
    }
    QToolButton& tool(QStringView name) const {
        for (QToolButton* const each : panel->findChildren<QToolButton*>()) {
            if (each->accessibleName() == name) return *each;
        }
        ADD_FAILURE() << "no button " << name.toString().toStdString();
        return *panel->findChild<QToolButton*>();
    }
    static void type(QLineEdit& field, const QString& text) {
        field.selectAll();
        field.insert(text);
        Q_EMIT field.textEdited(text);
    }
    void save(const QString& text) {
        type(name(), text);
        saveButton().click();
    }
    std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const FolderEntry& entry : list().entries())
            names.push_back(entry.name);
        return names;
    }
    void activate(int row) const { Q_EMIT list().activated(list().model()->index(row, 0)); }
    QMessageBox* question() const { return panel->findChild<QMessageBox*>(); }

    DialogDesk desk;
    FakeQuestions manual;
    std::unique_ptr<SavePanel> panel;
};

}  // namespace vantor
