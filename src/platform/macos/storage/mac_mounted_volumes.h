#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "platform/macos/frameworks/frameworks.h"
#include "platform/macos/frameworks/property_conversion.h"
#include "platform/mounted_volumes.h"

namespace vantor {

/// CFURLEnumeratorCreateForMountedVolumes without hidden volumes and without values fetched ahead,
/// then CFURLCopyResourcePropertiesForKeys of each volume's own URL: for its classification of the
/// two keys which decide about that, and for the details of theirs.
///
/// The URLs of the last enumeration are kept, since values are asked of exactly what was found;
/// each enumeration makes new ones, so that nothing in them is older than it.
class MacMountedVolumes : public MountedVolumes {
  public:
    explicit MacMountedVolumes(std::shared_ptr<const Frameworks> frameworks);

    /// An entry that cannot be read costs itself alone; a volume of the last enumeration that may
    /// be behind it is listed once more. Absent, too, when the enumeration comes to no end.
    std::optional<std::vector<Volume>> mountedVolumes() override;
    /// Unknown for a volume that is not of the last enumeration.
    Classification classification(const Volume& volume) override;
    Details details(const Volume& volume) override;

  private:
    struct Found {
        std::string path;
        std::string lastPathComponent;
        RetainedReference url;
        bool wasMissing;  ///< and was listed all the same
    };

    /// Adds the volume behind a URL; false when its path cannot be read.
    bool add(CFTypeRef url, std::vector<Volume>& volumes);
    void addMissing(std::vector<Found> before, std::vector<Volume>& volumes);
    /// The dictionary of those values of the volume that there are. Keys may be null.
    RetainedReference resourceValues(const Volume& volume,
                                     std::initializer_list<CFTypeRef> keys) const;

    std::shared_ptr<const Frameworks> frameworks_;
    PropertyConversion conversion_;
    bool canEnumerate_;
    bool canAskVolumes_;
    std::vector<Found> found_;
};

}  // namespace vantor
