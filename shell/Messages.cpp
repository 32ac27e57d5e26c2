#include "shell/Messages.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

namespace velmaris {
namespace {

constexpr std::string_view kSection = "Form=";
constexpr std::string_view kFenetrePrincipale = "Données";
constexpr std::string_view kMotMessage = "MSG";

/// One line of the section: its text goes to the entry of its number.
void LitMessage(std::string_view ligne, TexteMsg &messages) {
  const std::size_t texte = ligne.find('\\');
  const std::size_t numero = texte == std::string_view::npos ? texte : ligne.find('\\', texte + 1);
  if (numero == std::string_view::npos) {
    return;
  }
  std::string_view champ = ligne.substr(numero + 1);
  champ = champ.substr(0, champ.find('\\'));
  Passe([&] {
    const int rang = Entier16(Val(champ));
    if (rang >= 0 && static_cast<std::size_t>(rang) < messages.size()) {
      messages[static_cast<std::size_t>(rang)] = ligne.substr(texte + 1, numero - texte - 1);
    }
  });
}

} // namespace

void LitMessages(std::string_view octets, TexteMsg &messages) {
  const std::string contenu = EnUtf8(octets);
  std::string_view section;
  for (const std::string_view ligne : Lignes(contenu)) {
    if (ligne.starts_with(kSection)) {
      section = ligne.substr(kSection.size());
    }
    if (section == kFenetrePrincipale && ligne.starts_with(kMotMessage)) {
      LitMessage(ligne, messages);
    }
  }
}

void ChargeMessages(const std::filesystem::path &fichier, TexteMsg &messages) {
  LitMessages(LitFichier(fichier), messages);
}

} // namespace velmaris
