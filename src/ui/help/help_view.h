#pragma once

#include <QWidget>

#include <vector>

#include "platform/platform_words.h"
#include "platform/process_info.h"
#include "ui/components/paragraph.h"
#include "ui/components/text_line.h"
#include "ui/drawing/background_view.h"
#include "ui/help/help_texts.h"

class QScrollArea;

namespace vantor {

/// A subject: its title over its text.
class HelpSectionView : public QWidget {
  public:
    explicit HelpSectionView(const HelpSection& section, QWidget* parent = nullptr);

    HeadingView& title() { return *title_; }
    ParagraphView& text() { return *text_; }

  private:
    HeadingView* title_;  // all owned by this widget, as its children
    ParagraphView* text_;
};

/// The content of the help window: a text in sections that scrolls, by arrow and page keys, Space,
/// Home and End, too. The text can be selected and copied.
class HelpView : public BackgroundView {
  public:
    HelpView(const ProcessInfo& versions, const PlatformWords& words, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override { return {560, 480}; }
    QSize sizeHint() const override;

    ParagraphView& summary() { return *summary_; }
    std::vector<HelpSectionView*> sections() const { return sections_; }
    QScrollArea& scrollArea() { return *scroll_; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* makeColumn(const PlatformWords& words, QWidget* content);

    ParagraphView* summary_ = nullptr;  // all owned by this widget, as its children
    std::vector<HelpSectionView*> sections_;
    QScrollArea* scroll_ = nullptr;
};

}  // namespace vantor
