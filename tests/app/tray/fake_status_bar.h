#pragma once

#include <memory>
#include <utility>

#include "app/tray/status_bar.h"

namespace vantor {

/// A tray that comes and goes when the test says so.
class FakeStatusBar : public StatusBar {
  public:
    bool isAvailable() const override { return isThere_; }
    void listen(std::function<void()> onChange) override { onChange_ = std::move(onChange); }
    std::unique_ptr<StatusItem> makeItem(StatusItemContent content) override {
        content_ = std::move(content);
        ++*items_;
        return std::make_unique<Item>(items_, toolTipChanges_);
    }

    void setThere(bool isThere) {
        isThere_ = isThere;
        if (onChange_) onChange_();
    }
    int items() const { return *items_; }
    int toolTipChanges() const { return *toolTipChanges_; }
    const StatusItemContent& content() const { return content_; }

  private:
    class Item : public StatusItem {
      public:
        Item(std::shared_ptr<int> count, std::shared_ptr<int> toolTipChanges)
            : count_(std::move(count)), toolTipChanges_(std::move(toolTipChanges)) {}
        ~Item() override { --*count_; }
        void toolTipChanged() override { ++*toolTipChanges_; }

      private:
        std::shared_ptr<int> count_;
        std::shared_ptr<int> toolTipChanges_;
    };

    bool isThere_ = true;
    std::function<void()> onChange_;
    StatusItemContent content_;
    std::shared_ptr<int> items_ = std::make_shared<int>(0);
    std::shared_ptr<int> toolTipChanges_ = std::make_shared<int>(0);
};

}  // namespace vantor
