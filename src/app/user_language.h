#pragma once

#include <QString>
#include <QStringList>
#include <QTranslator>

namespace vantor {

/// The language of the program's texts while this object lives: the first of the user's that there
/// is a catalogue for, or English. Reads that one catalogue and the toolkit's own, and lays
/// windows out in the direction of the language. Main thread.
class UserLanguage {
  public:
    /// Needs the application object. `languages` are the user's, as "de-DE", the favourite first;
    /// the catalogues of the program lie in `folder`.
    explicit UserLanguage(const QStringList& languages,
                          const QString& folder = QStringLiteral(":/translations"));
    UserLanguage(const UserLanguage&) = delete;
    UserLanguage& operator=(const UserLanguage&) = delete;
    ~UserLanguage();

    /// The name of the catalogue, such as "pt_BR"; empty: English.
    const QString& name() const { return name_; }

    /// What a catalogue for this language may be called, the likeliest name first.
    static QStringList candidates(const QString& language);

  private:
    QTranslator toolkit_;
    QTranslator program_;
    QString name_;
};

/// Has the toolkit write numbers as the user's system does, without setting thousands apart.
void adoptNumbersOfTheUser();

}  // namespace vantor
