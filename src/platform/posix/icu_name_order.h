#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/name_order.h"

struct UCollator;

namespace vantor {

/// The collation of a language by ICU, which the toolkit loads as well. Opened, and kept, when
/// first asked for names that are not all plain.
class ICUNameOrder : public NameOrder {
  public:
    /// As ICU names it ("de", "sv_SE"); "" is the order common to all languages.
    explicit ICUNameOrder(std::string language) : language_(std::move(language)) {}

    std::vector<std::uint32_t> ranks(std::span<const std::string> names) override;

  private:
    struct Close {
        void operator()(UCollator* collator) const;
    };

    std::optional<std::vector<std::string>> plainKeys(std::span<const std::string> names) const;
    bool open();
    std::string keyOf(const std::string& name);

    std::string language_;
    std::unique_ptr<UCollator, Close> collator_;
    std::u16string units_;  // of the name in work
};

/// The language in which the user has lists sorted: LC_ALL, LC_COLLATE or LANG, without its
/// encoding and its variant.
std::string languageOfNames();

}  // namespace vantor
