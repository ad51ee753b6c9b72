#pragma once

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QRegularExpression>
#include <QString>
#include <QTranslator>
#include <QWidget>

#include <set>

#include "app/languages/catalogue_file.h"
#include "ui/rendering.h"

namespace vantor {

/// A language that nobody speaks: longer, with accents and in brackets. It knows the texts of the
/// catalogues alone, so that one that is not in them stays English. In force while it lives.
class PseudoLanguage : public QTranslator {
  public:
    PseudoLanguage() {
        for (const CatalogueMessage& message : readCatalogue(QStringLiteral("de")))
            known_.insert(message.context + u'|' + message.source);
        QCoreApplication::installTranslator(this);
    }
    ~PseudoLanguage() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override {
        const QString text = QString::fromUtf8(source);
        if (!known_.contains(QString::fromUtf8(context) + u'|' + text)) return {};
        QString accented = text;
        accented.replace(u'a', u'á').replace(u'e', u'é').replace(u'o', u'ö').replace(u'u', u'ü');
        return u'[' + accented + QStringLiteral(" one two]");
    }

  private:
    std::set<QString> known_;
};

/// Texts that a person meets, and those of them that have not gone through the catalogues.
class MetTexts {
  public:
    void meet(const QString& text) {
        ++met_;
        QString rest = outsideBrackets(text);
        // The product's name, and keys.
        rest.remove(QRegularExpression(QStringLiteral("<b>Vantor</b>|Vantor|&|\\(Alt\\+Up\\)")));
        static const QRegularExpression figures(
            QStringLiteral("^[\\s\\d.,:%+\\-–—•…⁨⁩()/\"|]*$"));
        if (!figures.match(rest).hasMatch()) foreign_.insert(text);
    }

    /// All that `window` shows, says to screen readers and offers.
    void meet(QWidget& window) {
        meet(window.windowTitle());
        meet(QAccessible::queryAccessibleInterface(&window));
        for (const QWidget* child : window.findChildren<QWidget*>()) {
            meet(child->toolTip());
            meet(child->accessibleName());
            for (const QAction* action : child->actions())
                meet(action->text());
        }
    }

    /// `names` matches what the machine or its user has named.
    void expectNothingForeignBut(const QRegularExpression& names) const {
        EXPECT_GT(met_, 3);
        for (const QString& text : foreign_)
            EXPECT_TRUE(names.match(outsideBrackets(text)).hasMatch())
                << "not translated: " << utf8(text);
    }
    void expectNothingForeign() const {
        expectNothingForeignBut(QRegularExpression(QStringLiteral("^$")));
    }

  private:
    void meet(QAccessibleInterface* element) {
        if (!element || !element->isValid()) return;
        for (const auto kind :
             {QAccessible::Name, QAccessible::Description, QAccessible::Help, QAccessible::Value})
            meet(element->text(kind));
        for (int i = 0; i < element->childCount(); ++i)
            meet(element->child(i));
    }

    /// `text` without what is in brackets, also in brackets in brackets.
    static QString outsideBrackets(const QString& text) {
        QString rest;
        int depth = 0;
        for (const QChar c : text) {
            if (c == u'[') ++depth;
            if (depth == 0) rest += c;
            if (c == u']') --depth;
        }
        return rest;
    }

    std::set<QString> foreign_;
    int met_ = 0;
};

}  // namespace vantor
