#include "ui/settings/settings_view.h"

#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <utility>

#include "ui/components/make_child.h"
#include "ui/core_words.h"
#include "ui/dashboard/scroll_view.h"
#include "ui/dashboard/width_limit_layout.h"
#include "ui/theme.h"
#include "ui/translate.h"
#include "ui/typography.h"

namespace vantor {

namespace {

constexpr QSize smallest(480, 480);
constexpr double settingsIdealWidth = 520;
constexpr double settingsIdealHeight = 560;
constexpr double settingsLoginHeight = 40;  // what that row adds
constexpr double settingsNoteHeight = 28;
constexpr double widestForm = 680;

QString wordsOf(std::string_view words) {
    return QString::fromUtf8(words.data(), static_cast<qsizetype>(words.size()));
}

}  // namespace

SettingsView::SettingsView(Environment environment, QWidget* parent)
    : BackgroundView(parent),
      environment_(std::move(environment)),
      style_(formStyle(environment_.machine->processInfo())),
      form_(SettingsForm::of(*environment_.settings)) {
    auto* content = makeChild<QWidget>(this);
    auto* limit =
        std::make_unique<WidthLimitLayout>(Typography::scaled(widestForm), content).release();
    limit->addWidget(makeForm(content));
    auto* whole = makeLayout<QVBoxLayout>(this);
    whole->setContentsMargins(0, 0, 0, 0);
    scroll_ = makeScrollView(content);
    whole->setSpacing(0);
    whole->addWidget(scroll_, 1);
    notSaved_ = makeChild<NotSavedView>(this);
    whole->addWidget(notSaved_);
    show(form_);
    observe();
}

QWidget* SettingsView::makeForm(QWidget* content) {
    auto* widget = makeChild<QWidget>(content);
    auto* form = makeLayout<QFormLayout>(widget);
    vantorGroupedFormStyle(*form);
    addAppearance(*form);
    addMonitoring(*form);
    addData(*form);
    addAbout(*form);
    return widget;
}

QScrollArea* SettingsView::makeScrollView(QWidget* content) {
    LegacyVantorScrollView* view = nullptr;
    if (style_ == FormStyle::grouped) {
        view = makeChild<VantorScrollView>(this, Qt::Vertical);
    } else {
        view = makeChild<LegacyVantorScrollView>(this, Qt::Vertical);
    }
    view->setWidget(content);
    content->setAutoFillBackground(false);  // setWidget turns it on, and the background is ours
    return view;
}

CompatibleFormSection& SettingsView::addSection(QFormLayout& form, const QString& title) {
    auto* section = makeChild<CompatibleFormSection>(form.parentWidget(), style_, title);
    sections_.push_back(section);
    form.addRow(section);
    return *section;
}

void SettingsView::addAppearance(QFormLayout& form) {
    CompatibleFormSection& section = addSection(form, translate("SettingsView", "Appearance"));
    const QString label =
        //: whether colours are dark or light
        translate("SettingsView", "Theme");
    const auto onChoose = [this](int choice) {
        const Appearance chosen = allAppearances.at(static_cast<std::size_t>(choice));
        if (chosen != form_.appearance) environment_.settings->setAppearance(chosen);
    };
    theme_ =
        makeChild<SegmentedPicker>(&section, label, SettingsForm::appearanceLabels(), onChoose);
    theme_->hideLabel();
    section.add(makeChild<CompatibleLabeledContent>(&section, style_, label, theme_));
}

void SettingsView::addMonitoring(QFormLayout& form) {
    CompatibleFormSection& section = addSection(form, translate("SettingsView", "Monitoring"));
    addIntervalAndHistory(section);
    addToggles(section);
}

void SettingsView::addIntervalAndHistory(CompatibleFormSection& section) {
    const auto& settings = environment_.settings;
    const QString label =
        //: how often the figures are read
        translate("SettingsView", "Refresh interval");
    const auto onChoose = [s = settings](std::size_t choice) {
        s->setRefreshInterval(AppSettings::refreshIntervals.at(choice));
    };
    interval_ =
        makeChild<MenuPickerView>(&section, label, SettingsForm::intervalLabels(), onChoose);
    section.add(makeChild<CompatibleLabeledContent>(&section, style_, label, interval_));
    const Stepper stepper{
        //: how many readings the charts keep
        translate("SettingsView", "Chart history"),
        [](std::int64_t samples) {
            return translate("SettingsView", "%Ln sample(s)",
                             "for screen readers: how many readings the charts keep",
                             countForPlural(samples));
        },
        AppSettings::minHistory, AppSettings::maxHistory};
    history_ =
        makeChild<StepperView>(&section, stepper, form_.historyLength,
                               [s = settings](std::int64_t value) { s->setHistoryLength(value); });
    historyRow_ =
        makeChild<CompatibleLabeledContent>(&section, style_, form_.historyLabel(), history_);
    section.add(historyRow_);
}

void SettingsView::addToggles(CompatibleFormSection& section) {
    const auto place = style_ == FormStyle::grouped ? ToggleRowView::Switch::trailing
                                                    : ToggleRowView::Switch::leading;
    const auto& settings = environment_.settings;
    pointToPoint_ = makeChild<ToggleRowView>(
        &section,
        //: a switch: network interfaces, such as those of a VPN
        translate("SettingsView", "Include point-to-point and tunnel interfaces"), place,
        [s = settings](bool isOn) { s->setIncludePointToPointInterfaces(isOn); });
    section.add(pointToPoint_, ToggleRowView::outset);
    menuBar_ =
        makeChild<NotedToggleRow>(&section,
                                  //: a switch: the icon in the tray and its panel
                                  translate("SettingsView", "Show menu bar dashboard"), place,
                                  [s = settings](bool isOn) { s->setShowMenuBar(isOn); });
    section.add(menuBar_, NotedToggleRow::outset);
    followTray();
    if (environment_.loginItem) addLogin(section, place);
}

void SettingsView::followTray() {
    if (!environment_.hasTray) return;
    const auto tell = [this](const bool& hasTray) {
        menuBar_->tell(hasTray
                           ? QString()
                           //: below the switch of the menu bar dashboard
                           : translate("SettingsView", "This desktop has no tray to show it in."));
    };
    tell(environment_.hasTray->value());
    observations_.push_back(environment_.hasTray->observe(tell));
}

void SettingsView::addLogin(CompatibleFormSection& section, ToggleRowView::Switch place) {
    login_ =
        makeChild<NotedToggleRow>(&section,
                                  //: a switch: start the program when the user logs in
                                  translate("SettingsView", "Open at Login"), place,
                                  [item = environment_.loginItem](bool isOn) { item->set(isOn); });
    section.add(login_, NotedToggleRow::outset);
    auto& state = environment_.loginItem->state();
    const auto show = [this](const LoginState& found) {
        login_->show(found.isOn);
        login_->tell(wordedForPeople(found.problem));
    };
    show(state.value());
    observations_.push_back(state.observe(show));
}

void SettingsView::addData(QFormLayout& form) {
    CompatibleFormSection& section = addSection(form, translate("SettingsView", "Data"));
    const PlatformWords& words = environment_.machine->words();
    addValue(section,
             //: a label
             translate("SettingsView", "Network privacy"),
             //: the program does not ask the internet for the address
             translate("SettingsView", "No public IP lookup"));
    addValue(section,
             //: a label: where figures of processes come from
             translate("SettingsView", "Process source"),

             //: the name of the system, and of what tells of processes: "Native Linux procfs"
             translate("SettingsView", "Native %1 %2")
                 .arg(wordsOf(words.systemName), wordsOf(words.processInterface)));
    addValue(section,
             //: a label: where figures of graphics come from
             translate("SettingsView", "GPU telemetry"), wordsOf(words.graphicsTelemetry));
    auto* row = makeChild<QWidget>(&section);
    auto* line = makeLayout<QHBoxLayout>(row);
    line->setContentsMargins(0, 0, 0, 0);
    export_ = makeChild<CapsuleButtonView>(
        row, CapsuleButton{//: a button
                           translate("SettingsView", "Export Current Snapshot…"),
                           QStringLiteral("square.and.arrow.up"), environment_.onExport});
    export_->setEnabled(environment_.onExport != nullptr);
    line->addWidget(export_);
    line->addStretch();
    section.add(row);
}

void SettingsView::addAbout(QFormLayout& form) {
    addValue(
        addSection(form, /*: a heading: about the program */ translate("SettingsView", "About")),
        //: a label
        translate("SettingsView", "Application"),
        QStringLiteral("Vantor %1").arg(environment_.metadata.version()));
}

void SettingsView::addValue(CompatibleFormSection& section, const QString& label,
                            const QString& value) {
    values_.push_back(makeChild<CompatibleLabeledValue>(&section, style_, label, value));
    section.add(values_.back());
}

template <class Value>
void SettingsView::follow(Published<Value>& stream, Value SettingsForm::*field) {
    observations_.push_back(stream.observe([this, field](const Value& value) {
        SettingsForm next = form_;
        next.*field = value;
        show(next);
    }));
}

void SettingsView::observe() {
    AppSettings& settings = *environment_.settings;
    follow(settings.appearanceStream(), &SettingsForm::appearance);
    follow(settings.refreshIntervalStream(), &SettingsForm::refreshInterval);
    follow(settings.historyLengthStream(), &SettingsForm::historyLength);
    follow(settings.includePointToPointInterfacesStream(),
           &SettingsForm::includePointToPointInterfaces);
    follow(settings.showMenuBarStream(), &SettingsForm::showMenuBar);
    if (!environment_.notSaved) return;
    const auto tell = [this](const std::string& reason) {
        notSaved_->show(QString::fromStdString(reason));
    };
    tell(environment_.notSaved->value());
    observations_.push_back(environment_.notSaved->observe(tell));
}

void SettingsView::show(const SettingsForm& form) {
    // Stored first: the theme's picker also reports changes that are made here, and such a change
    // is then no news.
    form_ = form;
    if (const auto place = placeAmong(allAppearances, form.appearance)) {
        theme_->choose(static_cast<int>(*place));
    }
    interval_->show(SettingsForm::intervalLabel(form.refreshInterval),
                    placeAmong(AppSettings::refreshIntervals, form.refreshInterval));
    historyRow_->label().show(form.historyLabel());
    history_->show(form.historyLength);
    pointToPoint_->show(form.includePointToPointInterfaces);
    menuBar_->show(form.showMenuBar);
}

bool SettingsView::event(QEvent* event) {
    const bool isLookedAt =
        event->type() == QEvent::Show || event->type() == QEvent::WindowActivate;
    if (isLookedAt && environment_.loginItem) environment_.loginItem->look();
    return BackgroundView::event(event);
}

QSize SettingsView::minimumSizeHint() const {
    const int bar = scroll_->verticalScrollBar()->sizeHint().width();
    return smallest.expandedTo({scroll_->widget()->minimumSizeHint().width() + bar, 0});
}

QSize SettingsView::sizeHint() const {
    const bool hasNote = environment_.hasTray && !environment_.hasTray->value();
    const double height = settingsIdealHeight + (login_ ? settingsLoginHeight : 0) +
                          (hasNote ? settingsNoteHeight : 0);
    return QSize(Typography::scaled(settingsIdealWidth), Typography::scaled(height))
        .expandedTo(minimumSizeHint());
}

}  // namespace vantor
