#include "shell/bureau/Langage.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Bureau.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/bureau/FichierLangue.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <utility>

namespace velmaris {
namespace {

enum Champ : std::size_t { kNom = 0, kLegende = 1, kTexte = 2, kInfobulle = 3, kIndice = 4 };

bool AUneLegende(Genre genre) {
  switch (genre) {
  case Genre::Surface:
  case Genre::Champ:
  case Genre::Liste:
  case Genre::ListeBoite:
  case Genre::Table:
  case Genre::Onglets:
  case Genre::Curseur:
  case Genre::Jauge:
  case Genre::Image:
  case Genre::Separateur:
  case Genre::Papier:
  case Genre::Marque:
    return false;
  default:
    return true;
  }
}

bool AUnTexte(Genre genre) { return genre == Genre::Champ || genre == Genre::Liste || genre == Genre::ListeBoite; }

/// The windows whose fields take the texts of a language file, empty ones too. In all others what was typed stays.
bool PoseLesTextes(std::string_view fenetre) {
  constexpr std::array<std::string_view, 7> kFenetres = {kFenetreDonnees, kFenetreFSelect,    kFenetreUtilisateur,
                                                         kFenetreCiel,    kFenetreImpression, kFenetreApropos,
                                                         kFenetreEtat};
  return std::find(kFenetres.begin(), kFenetres.end(), fenetre) != kFenetres.end();
}

bool AUneInfobulle(Genre genre) { return genre != Genre::Texte; }

void AppliqueControle(std::span<const std::string_view> champs, const ListeControles &controles,
                      const std::function<void(Controle &, std::string)> &poseTexte) {
  const std::string_view indice = champs.size() > kIndice ? SansBlancs(champs[kIndice]) : std::string_view();
  const double rang = Val(indice);
  for (Controle *c : controles) {
    if (c->nom != champs[kNom] || (!indice.empty() && c->indice != rang)) {
      continue;
    }
    if (champs.size() > kLegende && AUneLegende(c->genre)) {
      c->legende = champs[kLegende];
    }
    if (champs.size() > kTexte && AUnTexte(c->genre)) {
      poseTexte(*c, std::string(champs[kTexte]));
    }
    if (champs.size() > kInfobulle && AUneInfobulle(c->genre)) {
      c->infobulle = champs[kInfobulle];
    }
  }
}

} // namespace

void PoseSeulTexte(Controle &controle, std::string texte) { controle.texte = std::move(texte); }

void AppliqueLangue(std::string_view fichier, std::string_view fenetre, const ListeControles &controles,
                    TexteMsg &messages, const std::function<void(Controle &, std::string)> &poseTexte) {
  PourChaqueLigneDe(fichier, fenetre, [&](auto champs) {
    if (!LitMessage(champs, messages)) {
      AppliqueControle(champs, controles, poseTexte);
    }
  });
}

namespace {

/// The current language file; nothing where there is none, or it can't be read.
std::optional<std::string> LitLangue(const Bureau &bureau) {
  std::optional<std::string> fichier;
  Passe([&] { fichier = LitFichier(TrouveFichier(bureau.dossiers, bureau.FichierLangue.substr(1))); });
  return fichier;
}

void ChargeDe(Bureau &bureau, const std::optional<std::string> &fichier, std::string_view fenetre) {
  const bool textes = PoseLesTextes(fenetre);
  const auto pose = [&](Controle &c, std::string mots) {
    if (textes) {
      PoseTexte(bureau, c, std::move(mots));
    }
  };
  const auto applique = [&] { AppliqueLangue(*fichier, fenetre, ControlesDe(bureau, fenetre), bureau.messages, pose); };
  Controle &jour = bureau.donnees.Label1;
  if (fichier && fenetre == kFenetreDonnees) {
    // The plain caption gives way to weekdays; it is kept as the label's own text.
    jour.legende = jour.texte;
    applique();
    jour.texte = jour.legende;
  } else if (fichier) {
    if (fenetre == kFenetreCiel) {
      PourChaqueLigneDe(*fichier, fenetre, [&](auto) { bureau.ciel.marqueLangue = "Lang"; });
    }
    applique();
  } else if (fenetre == kFenetreDonnees) {
    bureau.ports.boite({.texte = "Fichier absent.", .icone = Icone::Attention});
  }
  jour.infobulle = jour.legende;
}

} // namespace

void ChargeLangue(Bureau &bureau, std::string_view fenetre) { ChargeDe(bureau, LitLangue(bureau), fenetre); }

void ChargeLangues(Bureau &bureau, std::span<const std::string_view> fenetres) {
  const std::optional<std::string> fichier = LitLangue(bureau);
  Sections sections = fichier ? SectionsDe(*fichier) : Sections();
  for (const std::string_view fenetre : fenetres) {
    ChargeDe(bureau, fichier ? std::optional(sections[std::string(fenetre)]) : std::nullopt, fenetre);
  }
}

std::string ModeleLangue(const ListeControles &controles) {
  std::string texte;
  for (const Controle *c : controles) {
    texte += c->nom + '\\' + (AUneLegende(c->genre) ? c->legende : "") + '\\' + (AUnTexte(c->genre) ? c->texte : "") +
             '\\' + (AUneInfobulle(c->genre) ? c->infobulle : "") + '\\' +
             (c->indice < 0 ? "" : std::to_string(c->indice)) + "\r\n";
  }
  return texte;
}

void EcritLangue(Bureau &bureau, std::string_view fenetre) {
  EcritFichier(bureau.dossiers.utilisateur / ("lang" + std::string(fenetre) + ".txt"),
               ModeleLangue(ControlesDe(bureau, fenetre)));
}

} // namespace velmaris
