#include "ui/app_metadata.h"

namespace vantor {

AppMetadata::AppMetadata(const BundleInfo& bundle)
    : version_(
          QString::fromStdString(bundle.text("CFBundleShortVersionString").value_or("Unknown"))),
      build_(QString::fromStdString(bundle.text("CFBundleVersion").value_or("0"))) {}

}  // namespace vantor
