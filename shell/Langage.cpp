#include "shell/Langage.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/Bureau.hpp"

#include <optional>
#include <vector>

namespace velmaris {
namespace {

constexpr std::string_view kFenetre = "Données";

enum Champ : std::size_t { kNom = 0, kLegende = 1, kTexte = 2, kInfobulle = 3, kIndice = 4 };

std::vector<std::string_view> Decoupe(std::string_view ligne) {
  std::vector<std::string_view> champs;
  while (true) {
    const std::size_t fin = ligne.find('\\');
    champs.push_back(ligne.substr(0, fin));
    if (fin == std::string_view::npos) {
      return champs;
    }
    ligne.remove_prefix(fin + 1);
  }
}

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

void AppliqueMessage(const std::vector<std::string_view> &champs, TexteMsg &messages) {
  Passe([&] {
    const int numero = champs.size() > 2 ? Entier16(Val(champs[2])) : -1;
    if (numero >= 0 && numero < static_cast<int>(messages.size())) {
      messages[static_cast<std::size_t>(numero)] = champs[1];
    }
  });
}

void AppliqueControle(const std::vector<std::string_view> &champs, Donnees &donnees) {
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
  constexpr std::string_view kEntete = "Form=";
  const std::string utf8 = EnUtf8(texte);
  std::string_view section;
  for (const std::string_view ligne : Lignes(utf8)) {
    if (ligne.starts_with(kEntete)) {
      section = ligne.substr(kEntete.size());
    }
    if (section != fenetre) {
      continue;
    }
    const auto champs = Decoupe(ligne);
    if (ligne.starts_with("MSG")) {
      AppliqueMessage(champs, messages);
    } else {
      AppliqueControle(champs, donnees);
    }
  }
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
