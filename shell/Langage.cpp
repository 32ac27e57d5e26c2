#include "shell/Langage.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/Bureau.hpp"
#include "shell/Messages.hpp"

#include <optional>
#include <span>

namespace velmaris {
namespace {

constexpr std::string_view kFenetre = "Données";

enum Champ : std::size_t { kNom = 0, kLegende = 1, kTexte = 2, kInfobulle = 3, kIndice = 4 };

bool AUneLegende(Genre genre) {
  switch (genre) {
  case Genre::Surface:
  case Genre::Champ:
  case Genre::Liste:
  case Genre::ListeBoite:
  case Genre::Curseur:
  case Genre::Image:
    return false;
  default:
    return true;
  }
}

bool AUnTexte(Genre genre) { return genre == Genre::Champ || genre == Genre::Liste || genre == Genre::ListeBoite; }

bool AUneInfobulle(Genre genre) { return genre != Genre::Texte; }

void AppliqueControle(std::span<const std::string_view> champs, Donnees &donnees) {
  const std::string_view indice = champs.size() > kIndice ? SansBlancs(champs[kIndice]) : std::string_view();
  PourChaque(donnees, [&](const LigneDonnees &ligne, Controle &c) {
    if (ligne.nom != champs[kNom] || (!indice.empty() && ligne.indice != Val(indice))) {
      return;
    }
    if (champs.size() > kLegende && AUneLegende(c.genre)) {
      c.legende = champs[kLegende];
    }
    if (champs.size() > kTexte && AUnTexte(c.genre)) {
      c.texte = champs[kTexte];
    }
    if (champs.size() > kInfobulle && AUneInfobulle(c.genre)) {
      c.infobulle = champs[kInfobulle];
    }
  });
}

} // namespace

void AppliqueLangue(std::string_view texte, std::string_view fenetre, Donnees &donnees, TexteMsg &messages) {
  PourChaqueLigneDe(texte, fenetre, [&](auto champs) {
    if (!LitMessage(champs, messages)) {
      AppliqueControle(champs, donnees);
    }
  });
}

void ChargeLangue(Bureau &bureau) {
  std::optional<std::string> texte;
  Passe([&] { texte = LitFichier(TrouveFichier(bureau.dossiers, bureau.FichierLangue.substr(1))); });
  if (texte) {
    AppliqueLangue(*texte, kFenetre, bureau.donnees, bureau.messages);
  } else {
    bureau.ports.boite({.texte = "Fichier absent.", .icone = Icone::Attention});
  }
  bureau.donnees.Label1.infobulle = bureau.donnees.Label1.legende;
}

std::string ModeleLangue(Donnees &donnees) {
  std::string texte;
  PourChaque(donnees, [&](const LigneDonnees &ligne, const Controle &c) {
    texte += std::string(ligne.nom) + '\\' + (AUneLegende(c.genre) ? c.legende : "") + '\\' +
             (AUnTexte(c.genre) ? c.texte : "") + '\\' + (AUneInfobulle(c.genre) ? c.infobulle : "") + '\\' +
             (ligne.indice < 0 ? "" : std::to_string(ligne.indice)) + "\r\n";
  });
  return texte;
}

void EcritLangue(Bureau &bureau) {
  EcritFichier(bureau.dossiers.utilisateur / ("lang" + std::string(kFenetre) + ".txt"), ModeleLangue(bureau.donnees));
}

} // namespace velmaris
