#pragma once

#include <string>

namespace velmaris {

/// The language of help and errors on the command line; results aren't touched by it.
struct Langue {
  bool francais = false;
  /// The words of the language.
  std::string operator()(const char *enFrancais, const char *enAnglais) const {
    return francais ? enFrancais : enAnglais;
  }
};

/// The user's language by the three variables of the environment that tell that of messages: the first that holds
/// anything decides. French for a locale that begins with "fr", English for any other and where none is set.
/// @param lcAll, lcMessages, lang  values of LC_ALL, LC_MESSAGES and LANG; null where one isn't set
Langue LangueDuSysteme(const char *lcAll, const char *lcMessages, const char *lang);

} // namespace velmaris
