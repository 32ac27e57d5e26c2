#include "shell/carte/FichierObjets.hpp"

#include "chart/FichierLieux.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"

#include <optional>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

constexpr std::int16_t kModifie = -1;                      ///< the tables differ from the file
constexpr std::string_view kSupprime = "PlusRien";         ///< name of a deleted entry
constexpr std::string_view kMarqueOctets = "\xEF\xBB\xBF"; ///< what another program's file may begin with
constexpr int kSansChamp = 5;
constexpr int kHorsTable = 9;
constexpr int kFichierAbsent = 53;
constexpr int kAccesRefuse = 75;
constexpr std::size_t kMessageIllisible = 2;

/// What ended a reading before the file's end.
struct Arret {
  int numero = 0;
  std::size_t ligne = 0; ///< counted from 1; 0 for the file as a whole
};

void Signale(Bureau &bureau, const Arret &arret, const fs::path &fichier) {
  const Utilisateur &u = bureau.utilisateur;
  std::string texte = arret.numero == kHorsTable ? MotsErreur(bureau.donnees, arret.numero) + "\n\n"
                                                 : bureau.messages[kMessageIllisible] + "\n";
  texte += fichier.string();
  if (arret.ligne > 0) {
    texte += "\n" + u.TexteLigne.legende + " " + std::to_string(arret.ligne);
  }
  bureau.ports.boite({.texte = texte + "\n\n" + u.TexteDeCote.legende, .icone = Icone::Attention});
}

/// The user's own file, which is the one that is written.
fs::path FichierPropre(const Bureau &bureau) { return bureau.dossiers.utilisateur / kFichierObjets; }

/// Takes an entry into the tables and the list.
void Ajoute(Utilisateur &u, Objet objet) {
  const std::size_t n = CompteObjets(u);
  if (n + 1 >= kEntreesObjets) {
    throw Erreur(kHorsTable);
  }
  if (!SeRelit(objet)) {
    throw Erreur(kSansChamp); // an empty latitude, say, which would end the next writing
  }
  u.List1.liste.push_back(objet.Nom);
  u.tables[n] = std::move(objet);
  u.etiquetteCommand1 = std::to_string(n + 1);
}

/// Reads the lines into the tables, up to the first that can't be taken.
/// @param lues  gets the lines that were gone through, empty ones left out
std::optional<Arret> LitLignes(Utilisateur &u, std::string_view texte, std::string &lues) {
  std::size_t numero = 0;
  for (const std::string_view ligne : Lignes(texte)) {
    ++numero;
    if (!ligne.empty()) {
      lues.append(ligne) += '\n';
    }
    if (!EstLigneObjet(ligne)) {
      continue;
    }
    try {
      Ajoute(u, ObjetDeLigne(ligne));
    } catch (const Erreur &erreur) {
      return Arret{erreur.numero, numero};
    }
  }
  return std::nullopt;
}

void VideTables(Utilisateur &u) {
  u.tables.assign(kEntreesObjets, {});
  u.List1.liste.clear();
  u.List1.rang = -1;
  u.etiquetteCommand1 = "0";
  u.etiquetteCommand3.clear();
}

/// Puts a file out of the way of the one that replaces it, beside it and over none. Where it can be read it is copied,
/// so that it stays in its place until it is replaced.
/// @param octets  what it holds, none when it can't be read
/// @return where it is now
fs::path MetDeCote(const fs::path &fichier, const std::optional<std::string> &octets) {
  std::error_code refus;
  fs::path libre = fichier;
  libre.replace_extension(".ancien.txt");
  for (int i = 2; fs::exists(fs::symlink_status(libre, refus)); ++i) {
    libre = fichier;
    libre.replace_extension(".ancien." + std::to_string(i) + ".txt");
  }
  if (octets) {
    EcritFichier(libre, *octets);
    return libre;
  }
  fs::rename(fichier, libre, refus);
  if (refus) {
    throw Erreur(kAccesRefuse);
  }
  return libre;
}

/// What a file holds, none where there is none that can be read.
std::optional<std::string> OctetsDe(const fs::path &fichier) {
  std::optional<std::string> octets;
  Passe([&] { octets = LitFichier(fichier); });
  return octets;
}

} // namespace

std::string LigneObjet(const Objet &objet) {
  return objet.Latitude + " " + objet.Longitude + " " + std::to_string(objet.Rayon) + " " + objet.Nom;
}

Objet ObjetDeLigne(std::string_view ligne) {
  const PositionLieu position = DecoupePosition(ligne);
  const DetailsObjet details = DecoupeObjet(ligne, position.blanc);
  // After a latitude that is too long the place of the longitude reaches into the radius.
  const std::string_view longitude = position.longitude.substr(0, position.longitude.find(' '));
  return {std::string(position.latitude), std::string(longitude), Entier16(Val(details.rayon)),
          std::string(details.nom)};
}

bool SeRelit(const Objet &objet) {
  Objet relu;
  // As a file's first line it would lose a byte order mark, and with it be another place.
  return !objet.Latitude.starts_with(kMarqueOctets) && Passe([&] { relu = ObjetDeLigne(LigneObjet(objet)); }) &&
         Val(relu.Latitude) == Val(objet.Latitude) && Val(relu.Longitude) == Val(objet.Longitude) &&
         relu.Rayon == objet.Rayon && relu.Nom == objet.Nom;
}

std::string TexteObjets(const Utilisateur &fenetre) {
  std::string texte;
  const std::size_t compte = CompteObjets(fenetre);
  for (std::size_t n = 0; n < compte; ++n) {
    const Objet &objet = fenetre.tables[n];
    if (objet.Nom == kSupprime) {
      continue;
    }
    if (objet.Latitude.empty()) {
      break;
    }
    texte.append(LigneObjet(objet)) += '\n';
  }
  return texte;
}

void RemetObjets(Utilisateur &u, std::string_view texte) {
  VideTables(u);
  std::string lues;
  LitLignes(u, texte, lues);
  u.Modifie = kModifie;
}

void LitFichier(Bureau &bureau) {
  Utilisateur &u = bureau.utilisateur;
  bureau.horlogeArretee = true;
  VideTables(u);
  u.octetsLus.reset();
  const fs::path fichier = TrouveFichier(bureau.dossiers, kFichierObjets);
  std::string texte;
  std::optional<Arret> arret;
  try {
    std::string octets = LitFichier(fichier);
    texte = EnUtf8(octets);
    if (fichier == FichierPropre(bureau)) {
      u.octetsLus = std::move(octets);
    }
  } catch (const Erreur &erreur) {
    if (erreur.numero != kFichierAbsent) {
      arret = Arret{erreur.numero, 0};
    }
  }
  std::string lues;
  if (!arret) {
    arret = LitLignes(u, texte, lues);
  }
  u.fidele = !arret && lues == TexteObjets(u);
  if (arret) {
    Signale(bureau, *arret, fichier);
  }
}

void EcritFichier(Bureau &bureau) {
  Utilisateur &u = bureau.utilisateur;
  const fs::path fichier = FichierPropre(bureau);
  std::error_code refus;
  fs::create_directories(fichier.parent_path(), refus);
  const bool la = fs::exists(fs::symlink_status(fichier, refus));
  const std::optional<std::string> octets = OctetsDe(fichier);
  const bool change = fs::is_regular_file(fichier, refus) && octets != u.octetsLus;
  fs::path deCote;
  if (change || (la && !u.fidele)) {
    deCote = MetDeCote(fichier, octets);
    u.octetsLus = octets; // a second try doesn't set the same aside again
  }
  u.fidele = true;
  const std::string texte = TexteObjets(u);
  const bool ecrit = Passe([&] { EcritFichier(fichier, texte); });
  if (ecrit) {
    u.octetsLus = texte;
  }
  if (change) {
    bureau.ports.boite({.texte = u.TexteAutreMain.legende + "\n" + deCote.string(), .icone = Icone::Attention});
  }
  if (!ecrit) {
    throw Erreur(kAccesRefuse);
  }
}

} // namespace velmaris
