#pragma once

#include <QLocale>
#include <QString>

#include <string>
#include <string_view>

#include "model/process_stats.h"

namespace vantor {

/// Finds processes by what a user typed: in the name or the command, ignoring case and accents by
/// the rules of the user's language, in the true text or the shown one; or in the decimal
/// identifier.
class ProcessSearch {
  public:
    explicit ProcessSearch(const QString& query, const QLocale& locale = QLocale());

    bool matches(const ProcessStats& process) const;

    /// `text` without case and accents, for comparing.
    static QString folded(const QString& text, const QLocale& locale);

  private:
    bool isIn(std::string_view text) const;

    QLocale locale_;
    std::string query_;  // as typed
    QString folded_;
    std::string plain_;  // the folded query; empty where letters outside ASCII matter
};

}  // namespace vantor
