#include "shell/bureau/FichierLangue.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

#include <vector>

namespace velmaris {
namespace {

constexpr std::string_view kEntete = "Form=";
constexpr std::string_view kFenetrePrincipale = "Données";
constexpr std::string_view kMotMessage = "MSG";

void Decoupe(std::string_view ligne, std::vector<std::string_view> &champs) {
  champs.clear();
  for (std::size_t fin = ligne.find('\\'); fin != std::string_view::npos; fin = ligne.find('\\')) {
    champs.push_back(ligne.substr(0, fin));
    ligne.remove_prefix(fin + 1);
  }
  champs.push_back(ligne);
}

} // namespace

void PourChaqueLigneDe(std::string_view octets, std::string_view fenetre,
                       const std::function<void(std::span<const std::string_view>)> &ligne) {
  const std::string contenu = EnUtf8(octets);
  std::string_view section;
  std::vector<std::string_view> champs;
  for (const std::string_view texte : Lignes(contenu)) {
    if (texte.starts_with(kEntete)) {
      section = texte.substr(kEntete.size());
    }
    if (section == fenetre) {
      Decoupe(texte, champs);
      ligne(champs);
    }
  }
}

Sections SectionsDe(std::string_view octets) {
  const std::string contenu = EnUtf8(octets);
  Sections sections;
  std::string *section = nullptr;
  for (const std::string_view texte : Lignes(contenu)) {
    if (texte.starts_with(kEntete)) {
      section = &sections[std::string(texte.substr(kEntete.size()))];
    }
    if (section != nullptr) {
      section->append(texte).append("\n");
    }
  }
  return sections;
}

bool LitMessage(std::span<const std::string_view> champs, TexteMsg &messages) {
  if (!champs[0].starts_with(kMotMessage)) {
    return false;
  }
  Passe([&] {
    const int rang = champs.size() > 2 ? Entier16(Val(champs[2])) : -1;
    if (rang >= 0 && static_cast<std::size_t>(rang) < messages.size()) {
      messages[static_cast<std::size_t>(rang)] = champs[1];
    }
  });
  return true;
}

void LitMessages(std::string_view octets, TexteMsg &messages) {
  PourChaqueLigneDe(octets, kFenetrePrincipale, [&](auto champs) { LitMessage(champs, messages); });
}

void ChargeMessages(const std::filesystem::path &fichier, TexteMsg &messages) {
  LitMessages(LitFichier(fichier), messages);
}

} // namespace velmaris
