#pragma once

#include <locale.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/name_order.h"

namespace vantor {

/// The collation of a locale by the C library, for systems where ICU is not at hand when the
/// program is built. Composed and decomposed characters are two, and a locale that is not set up on
/// the machine has the order of the bytes.
class LibcNameOrder : public NameOrder {
  public:
    /// As the C library names it ("de_DE.UTF-8"); "" is the locale of the environment.
    explicit LibcNameOrder(const std::string& locale = {});

    std::vector<std::uint32_t> ranks(std::span<const std::string> names) override;

  private:
    struct Free {
        void operator()(locale_t locale) const { ::freelocale(locale); }
    };

    std::string keyOf(const std::string& name) const;

    std::unique_ptr<std::remove_pointer_t<locale_t>, Free> locale_;
};

}  // namespace vantor
