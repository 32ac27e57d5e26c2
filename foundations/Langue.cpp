#include "foundations/Langue.hpp"

#include <string_view>

namespace velmaris {

Langue LangueDuSysteme(const char *lcAll, const char *lcMessages, const char *lang) {
  for (const char *valeur : {lcAll, lcMessages, lang}) {
    if (valeur != nullptr && *valeur != '\0') {
      const std::string_view locale = valeur;
      // "fr" alone, or before a country, a character set or a modifier.
      return {locale.starts_with("fr") &&
              (locale.size() == 2 || std::string_view("_.@").find(locale[2]) != std::string_view::npos)};
    }
  }
  return {};
}

} // namespace velmaris
