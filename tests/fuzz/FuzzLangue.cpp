#include "Attend.hpp"
#include "shell/bureau/FichierLangue.hpp"
#include "shell/bureau/Langage.hpp"
#include "shell/fenetres/Donnees.hpp"

using namespace velmaris;

/// The companion's reader and the main window's find the same numbered texts in any file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const std::string_view texte = Octets(octets, taille);
  TexteMsg seuls;
  LitMessages(texte, seuls);
  for (const std::string &message : seuls) {
    Attend(message.find_first_of("\\\r\n") == std::string::npos, "a text holds neither backslash nor line end");
  }
  Donnees donnees;
  TexteMsg messages;
  AppliqueLangue(texte, "Données", Liste(donnees), messages);
  Attend(messages == seuls, "both readers find the same texts");
  return 0;
}
