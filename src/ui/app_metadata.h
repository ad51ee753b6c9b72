#pragma once

#include <QString>

#include "platform/bundle_info.h"

namespace vantor {

/// The program's version and build as it shows them. Computed once; immutable.
class AppMetadata {
  public:
    explicit AppMetadata(const BundleInfo& bundle);

    const QString& version() const { return version_; }  ///< "Unknown" when the bundle has none
    const QString& build() const { return build_; }      ///< "0" when the bundle has none

  private:
    QString version_;
    QString build_;
};

}  // namespace vantor
