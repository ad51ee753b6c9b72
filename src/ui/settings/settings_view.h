#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/machine.h"
#include "platform/published.h"
#include "settings/app_settings.h"
#include "settings/login_item.h"
#include "ui/app_metadata.h"
#include "ui/components/capsule_button.h"
#include "ui/components/menu_picker.h"
#include "ui/components/segmented_picker.h"
#include "ui/components/stepper.h"
#include "ui/components/toggle_row.h"
#include "ui/drawing/background_view.h"
#include "ui/settings/compatible_form.h"
#include "ui/settings/not_saved_view.h"
#include "ui/settings/noted_toggle_row.h"
#include "ui/settings/settings_form.h"

class QFormLayout;
class QScrollArea;

namespace vantor {

/// The content of the settings window. The user's changes apply at once, and changes of the
/// settings are shown at once. It never writes what the user did not choose: a value that is not
/// among the choices is shown as it is. Scrolls where it is not high enough. Main thread.
class SettingsView : public BackgroundView {
  public:
    struct Environment {
        std::shared_ptr<AppSettings> settings;
        std::shared_ptr<Machine> machine;
        const AppMetadata& metadata;
        std::function<void()> onExport;  ///< none: the button is disabled
        /// Why the settings are not saved, empty while they are; none: not shown.
        std::shared_ptr<Published<std::string>> notSaved{};
        std::shared_ptr<LoginItem> loginItem{};  ///< none: opening at login is not offered
        /// Whether the desktop has a tray; none: taken for granted.
        std::shared_ptr<Published<bool>> hasTray{};
    };

    explicit SettingsView(Environment environment, QWidget* parent = nullptr);

    /// 480 x 480 points, or more where the texts are larger than that.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

    QScrollArea& scrollArea() { return *scroll_; }
    std::vector<CompatibleFormSection*> sections() const { return sections_; }
    std::vector<CompatibleLabeledValue*> values() const { return values_; }
    SegmentedPicker& theme() { return *theme_; }
    MenuPickerView& interval() { return *interval_; }
    CompatibleLabeledContent& historyRow() { return *historyRow_; }
    StepperView& history() { return *history_; }
    ToggleRowView& pointToPoint() { return *pointToPoint_; }
    ToggleRowView& menuBar() { return menuBar_->toggle(); }
    ParagraphView& menuBarNote() { return menuBar_->problem(); }
    CapsuleButtonView& exportButton() { return *export_; }
    NotSavedView& notSaved() { return *notSaved_; }
    NotedToggleRow* login() { return login_; }  ///< null where it is not offered

  protected:
    /// Others may have changed what opens at login meanwhile.
    bool event(QEvent* event) override;

  private:
    QWidget* makeForm(QWidget* content);
    QScrollArea* makeScrollView(QWidget* content);
    CompatibleFormSection& addSection(QFormLayout& form, const QString& title);
    void addAppearance(QFormLayout& form);
    void addMonitoring(QFormLayout& form);
    void addIntervalAndHistory(CompatibleFormSection& section);
    void addToggles(CompatibleFormSection& section);
    void followTray();
    void addLogin(CompatibleFormSection& section, ToggleRowView::Switch place);
    void addData(QFormLayout& form);
    void addAbout(QFormLayout& form);
    void addValue(CompatibleFormSection& section, const QString& label, const QString& value);
    void observe();
    template <class Value>
    void follow(Published<Value>& stream, Value SettingsForm::*field);
    void show(const SettingsForm& form);

    Environment environment_;
    FormStyle style_;
    SettingsForm form_;                             // what is shown
    std::vector<CompatibleFormSection*> sections_;  // all owned by this widget, as its children
    std::vector<CompatibleLabeledValue*> values_;
    QScrollArea* scroll_ = nullptr;
    SegmentedPicker* theme_ = nullptr;
    MenuPickerView* interval_ = nullptr;
    CompatibleLabeledContent* historyRow_ = nullptr;
    StepperView* history_ = nullptr;
    ToggleRowView* pointToPoint_ = nullptr;
    NotedToggleRow* menuBar_ = nullptr;
    CapsuleButtonView* export_ = nullptr;
    NotedToggleRow* login_ = nullptr;
    NotSavedView* notSaved_ = nullptr;
    std::vector<Subscription> observations_;
};

}  // namespace vantor
