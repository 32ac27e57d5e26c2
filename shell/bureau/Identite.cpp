#include "shell/bureau/Identite.hpp"

namespace velmaris {

Version VersionProgramme() { return {VELMARIS_VERSION_MAJEURE, VELMARIS_VERSION_MINEURE, VELMARIS_VERSION_REVISION}; }

std::string_view TexteVersion() { return VELMARIS_VERSION; }

std::string_view Identifiant() { return VELMARIS_IDENTIFIANT; }

std::string_view Site() { return VELMARIS_SITE; }

std::string_view Courriel() { return VELMARIS_COURRIEL; }

} // namespace velmaris
