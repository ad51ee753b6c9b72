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
class PlayedExportPlatform {
  public:
    using Path = std::filesystem::path;

    struct Write {
        Path destination;
        std::string bytes;
    };

    ExportPlatform platform() {
        return {std::make_shared<Dialogs>(this), std::make_shared<PlayedAlerts>(this),
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
        explicit Dialog(PlayedExportPlatform* played) : played_(played) {}
        Dialog(const Dialog&) = delete;
        Dialog& operator=(const Dialog&) = delete;
        ~Dialog() override { --played_->openDialogs; }
        void begin(Completion whenOver) override {
            ++played_->openDialogs;
            played_->completion = std::move(whenOver);
        }
        PlayedExportPlatform* played_;
    };

    struct Dialogs : SaveDialogs {
        explicit Dialogs(PlayedExportPlatform* played) : played_(played) {}
        std::unique_ptr<SaveDialog> makeSaveDialog(const SaveRequest& request) override {
            played_->requests.push_back(request);
            return std::make_unique<Dialog>(played_);
        }
        PlayedExportPlatform* played_;
    };

    struct PlayedAlerts : Alerts {
        explicit PlayedAlerts(PlayedExportPlatform* played) : played_(played) {}
        void runModal(const AlertText& text) override {
            played_->alerts.push_back(text);
            if (played_->onAlert) played_->onAlert();
        }
        PlayedExportPlatform* played_;
    };

    struct Files : AtomicFileWriter {
        explicit Files(PlayedExportPlatform* played) : played_(played) {}
        std::optional<DescribedError> write(const Path& destination,
                                            std::string_view bytes) override {
            if (played_->onWrite) played_->onWrite();
            if (played_->writeError) return played_->writeError;
            played_->writes.push_back({destination, std::string(bytes)});
            return std::nullopt;
        }
        PlayedExportPlatform* played_;
    };

    struct Calendar : LocalCalendar {
        explicit Calendar(PlayedExportPlatform* played) : played_(played) {}
        CalendarTime at(std::chrono::system_clock::time_point moment) const override {
            played_->named.push_back(moment);
            return played_->localTime;
        }
        PlayedExportPlatform* played_;
    };
};

}  // namespace vantor
