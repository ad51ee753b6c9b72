#pragma once

#include <QString>
#include <QWidget>

#include <vector>

#include "platform/process_info.h"
#include "ui/components/text_line.h"

class QVBoxLayout;

namespace vantor {

/// How forms look.
enum class FormStyle {
    grouped,  ///< from system version 13.0.0 on: groups of rows under a header
    plain     ///< before: titled columns
};

FormStyle formStyle(const ProcessInfo& versions);

/// The background of a section's rows, with hairlines between them where it is grouped.
class FormRowsView : public QWidget {
  public:
    explicit FormRowsView(FormStyle style, QWidget* parent = nullptr);
    void add(QWidget* row, int outset);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    FormStyle style_;
    QVBoxLayout* column_;         // owned by this widget, as its layout
    std::vector<QWidget*> rows_;  // owned by this widget, as its children
};

/// A section of a form: a title over its rows.
class CompatibleFormSection : public QWidget {
  public:
    CompatibleFormSection(FormStyle style, const QString& title, QWidget* parent = nullptr);

    /// Adds a row under those that are there; it becomes this section's. `outset` is how far it
    /// extends beyond the others at both sides.
    void add(QWidget* row, int outset = 0) { rows_->add(row, outset); }

    FormStyle style() const { return style_; }
    HeadingView& title() { return *title_; }

  private:
    FormStyle style_;
    HeadingView* title_;  // all owned by this widget, as its children
    FormRowsView* rows_;
};

/// The label of a row. It is never cut: the form cannot be narrower than it.
class FormLabelView : public TextLineView {
  public:
    FormLabelView(FormStyle style, const QString& text, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  private:
    FormStyle style_;
};

/// A row: a label and its content. Grouped, they are at both ends; plain, the content follows a
/// label of a fixed width.
class CompatibleLabeledContent : public QWidget {
  public:
    /// The content becomes this row's.
    CompatibleLabeledContent(FormStyle style, const QString& label, QWidget* content,
                             QWidget* parent = nullptr);

    FormLabelView& label() { return *label_; }

  private:
    FormLabelView* label_;  // owned by this widget, as its child
};

/// A text that is the value of a label; assistive technology gets both.
class LabeledTextView : public TextLineView {
  public:
    LabeledTextView(QString label, const QString& value, QWidget* parent = nullptr);

    QString accessibleLabel() const override { return label_; }
    QString accessibleValueText() const override { return text(); }

  private:
    QString label_;
};

/// A row whose content is a text.
class CompatibleLabeledValue : public CompatibleLabeledContent {
  public:
    CompatibleLabeledValue(FormStyle style, const QString& label, const QString& value,
                           QWidget* parent = nullptr);

    LabeledTextView& value() { return *value_; }

  private:
    CompatibleLabeledValue(FormStyle style, const QString& label, LabeledTextView* value,
                           QWidget* parent);

    LabeledTextView* value_;  // owned by this widget, as its child
};

}  // namespace vantor
