#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/export_platform.h"

namespace vantor {

/// A user who is asked where to save and told what failed, on disks of memory.
class FakeExportPlatform {
  public:
    using Path = std::filesystem::path;

    struct Write {
        Path destination;
        std::string bytes;
    };

    ExportPlatform platform() {
        return {std::make_shared<Dialogs>(this), std::make_shared<FakeAlerts>(this),
                std::make_shared<Files>(this), std::make_shared<Calendar>(this)};
    }

    std::vector<SaveRequest> requests;  ///< all dialogs so far
    int openDialogs = 0;
    std::vector<AlertText> alerts;
    std::vector<Write> writes;
    std::vector<std::chrono::system_clock::time_point> named;  ///< what the calendar was asked for

    std::optional<DescribedError> writeError;  ///< what the disk refuses with
    std::function<void()> onWrite;             ///< before the disk answers
    std::function<void()> onAlert;             ///< while the alert is shown
    CalendarTime localTime{2026, 2, 3, 9, 5, 7};

    /// The user answers the last dialog.
    void confirm(const Path& destination) { completion(destination); }
    void cancel() { completion(std::nullopt); }

    SaveDialog::Completion completion;  ///< of the last dialog; it can be called later than allowed

  private:
    struct Dialog : SaveDialog {
        explicit Dialog(FakeExportPlatform* played) : fake_(played) {}
        Dialog(const Dialog&) = delete;
        Dialog& operator=(const Dialog&) = delete;
        ~Dialog() override { --fake_->openDialogs; }
        void begin(Completion whenOver) override {
            ++fake_->openDialogs;
            fake_->completion = std::move(whenOver);
        }
        FakeExportPlatform* fake_;
    };

    struct Dialogs : SaveDialogs {
        explicit Dialogs(FakeExportPlatform* played) : fake_(played) {}
        std::unique_ptr<SaveDialog> makeSaveDialog(const SaveRequest& request) override {
            fake_->requests.push_back(request);
            return std::make_unique<Dialog>(fake_);
        }
        FakeExportPlatform* fake_;
    };

    struct FakeAlerts : Alerts {
        explicit FakeAlerts(FakeExportPlatform* played) : fake_(played) {}
        void runModal(const AlertText& text) override {
            fake_->alerts.push_back(text);
            if (fake_->onAlert) fake_->onAlert();
        }
        FakeExportPlatform* fake_;
    };

    struct Files : AtomicFileWriter {
        explicit Files(FakeExportPlatform* played) : fake_(played) {}
        std::optional<DescribedError> write(const Path& destination,
                                            std::string_view bytes) override {
            if (fake_->onWrite) fake_->onWrite();
            if (fake_->writeError) return fake_->writeError;
            fake_->writes.push_back({destination, std::string(bytes)});
            return std::nullopt;
        }
        FakeExportPlatform* fake_;
    };

    struct Calendar : LocalCalendar {
        explicit Calendar(FakeExportPlatform* played) : fake_(played) {}
        CalendarTime at(std::chrono::system_clock::time_point moment) const override {
            fake_->named.push_back(moment);
            return fake_->localTime;
        }
        FakeExportPlatform* fake_;
    };
};

}  // namespace vantor
