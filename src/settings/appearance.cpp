#include "settings/appearance.h"

namespace vantor {

std::string_view appearanceText(Appearance appearance) {
    switch (appearance) {
        case Appearance::system:
            return "system";
        case Appearance::light:
            return "light";
        case Appearance::dark:
            break;
    }
    return "dark";
}

Appearance appearanceFromText(std::string_view text) {
    if (text == "system") return Appearance::system;
    if (text == "light") return Appearance::light;
    return Appearance::dark;
}

}  // namespace vantor
