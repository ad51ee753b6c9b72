#pragma once

#include <array>
#include <string_view>

namespace vantor {

/// How the program looks: like the desktop, or always dark or light.
enum class Appearance { system, dark, light };

/// All cases, in the order in which they are offered.
inline constexpr std::array allAppearances{Appearance::system, Appearance::dark, Appearance::light};

/// The text that an appearance is stored as and identified by.
std::string_view appearanceText(Appearance appearance);

/// The appearance of a stored text; any text that is not one of the three is dark.
Appearance appearanceFromText(std::string_view text);

}  // namespace vantor
