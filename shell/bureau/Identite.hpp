#pragma once

#include <string_view>

namespace velmaris {

/// The program's version, as the build has it.
struct Version {
  int majeure = 0;
  int mineure = 0;
  int revision = 0;
};

/// The version that was built.
Version VersionProgramme();
/// The same as text: three numbers and two points.
std::string_view TexteVersion();
/// Reverse-DNS name, by which a desktop knows the program.
std::string_view Identifiant();
/// Address of the program's site.
std::string_view Site();
/// Mail address of its authors.
std::string_view Courriel();

} // namespace velmaris
