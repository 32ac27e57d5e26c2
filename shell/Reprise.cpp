#include "shell/Reprise.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/Sauvegarde.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/carte/FichierObjets.hpp"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view kTitre = "velmaris reprise 1"; ///< of this form of the file
constexpr std::string_view kFin = "fin";
constexpr std::string_view kControle = "controle"; ///< name, index, value
constexpr std::string_view kFeuille = "feuille";   ///< latitude and longitude of its origin, grid
constexpr std::string_view kDroites = "droites";   ///< four colours
constexpr std::string_view kTransports = "transports";
constexpr std::string_view kEstime = "estime";
constexpr std::string_view kObjets = "objets";
constexpr char kSeparateur = '\t';

std::string Booleen(bool vrai) { return vrai ? "1" : "0"; }

/// What a control holds by its user's doing.
/// @return nothing for one that its user can't change
std::optional<std::string> Valeur(const Controle &c) {
  switch (c.genre) {
  case Genre::Champ:
    return c.lectureSeule ? std::nullopt : std::optional(c.texte);
  case Genre::Option:
    return Booleen(c.choisi);
  case Genre::Case:
  case Genre::Curseur:
    return std::to_string(c.valeur);
  case Genre::Liste:
    return std::to_string(c.rang) + " " + c.texte;
  case Genre::Cadre:
    return c.titre ? std::optional(Booleen(c.visible) + " " + TexteGeneral(c.place.gauche) + " " +
                                   TexteGeneral(c.place.haut))
                   : std::nullopt;
  default:
    return std::nullopt;
  }
}

/// A text in one line without the separator.
std::string Protege(std::string_view texte) {
  std::string ligne;
  for (const char c : texte) {
    switch (c) {
    case '\\':
      ligne += "\\\\";
      break;
    case '\n':
      ligne += "\\n";
      break;
    case '\r':
      ligne += "\\r";
      break;
    case kSeparateur:
      ligne += "\\t";
      break;
    default:
      ligne += c;
    }
  }
  return ligne;
}

std::string Deprotege(std::string_view ligne) {
  std::string texte;
  for (std::size_t i = 0; i < ligne.size(); ++i) {
    if (ligne[i] != '\\' || i + 1 == ligne.size()) {
      texte += ligne[i];
      continue;
    }
    const char c = ligne[++i];
    texte += c == 'n' ? '\n' : c == 'r' ? '\r' : c == 't' ? kSeparateur : c;
  }
  return texte;
}

/// Adds a line of a kind with its parts.
void Ajoute(std::string &texte, std::string_view genre, std::initializer_list<std::string> parties) {
  texte += genre;
  for (const std::string &partie : parties) {
    texte += kSeparateur + Protege(partie);
  }
  texte += '\n';
}

std::vector<std::string> Parties(std::string_view ligne) {
  std::vector<std::string> parties;
  while (true) {
    const std::size_t fin = ligne.find(kSeparateur);
    parties.push_back(Deprotege(ligne.substr(0, fin)));
    if (fin == std::string_view::npos) {
      return parties;
    }
    ligne.remove_prefix(fin + 1);
  }
}

/// A number that fills its text.
/// @throws Erreur 13 for anything else
template <class Nombre> Nombre LitExact(const std::string &texte) {
  Nombre nombre{};
  const auto [fin, refus] = std::from_chars(texte.data(), texte.data() + texte.size(), nombre);
  if (refus != std::errc() || fin != texte.data() + texte.size()) {
    throw Erreur(13);
  }
  return nombre;
}

std::string Court(float valeur) {
  std::array<char, 32> texte{};
  return {texte.data(), std::to_chars(texte.data(), texte.data() + texte.size(), valeur).ptr};
}

/// One line of the file, by its kind and the number of its parts.
/// @throws Erreur 13 for a line of another form
void LitLigne(const std::vector<std::string> &p, Session &session) {
  EtatFeuille &f = session.feuille;
  const auto est = [&](std::string_view genre, std::size_t nombre) { return p[0] == genre && p.size() == nombre + 1; };
  if (est(kControle, 3)) {
    session.controles.push_back({p[1], LitExact<int>(p[2]), p[3]});
  } else if (est(kFeuille, 3)) {
    f.origine = {LitExact<float>(p[1]), LitExact<float>(p[2])};
    f.grille = p[3] == "1";
  } else if (est(kDroites, f.droites.size())) {
    std::transform(p.begin() + 1, p.end(), f.droites.begin(), LitExact<Couleur>);
  } else if (est(kTransports, 3)) {
    f.transportsDroite = p[1];
    f.cible = p[2];
    f.transportsEstime = p[3];
  } else if (est(kEstime, 2)) {
    f.estime = {LitExact<float>(p[1]), LitExact<float>(p[2])};
  } else if (est(kObjets, 1)) {
    session.objets = p[1];
  } else {
    throw Erreur(13);
  }
}

} // namespace

Session PriseSession(Bureau &bureau) {
  Session session;
  PourChaque(bureau.donnees, [&](const LigneDonnees &, const Controle &c) {
    if (std::optional<std::string> valeur = Valeur(c)) {
      session.controles.push_back({c.nom, c.indice, std::move(*valeur)});
    }
  });
  const Transports &t = bureau.transports;
  EtatFeuille &f = session.feuille;
  f.origine = bureau.feuille.OrigineFeuille;
  f.grille = bureau.feuille.Grille == 0;
  std::transform(bureau.donnees.LHeure.begin(), bureau.donnees.LHeure.end(), f.droites.begin(),
                 [](const Controle &c) { return c.couleur; });
  f.transportsDroite = t.ListeTransportDroite;
  f.cible = t.CibleTransport;
  f.transportsEstime = t.ListeTransportEstime;
  f.estime = {t.LatEstimeTransport, t.LonEstimeTransport};
  if (bureau.utilisateur.Modifie != 0) {
    session.objets = TexteObjets(bureau.utilisateur);
  }
  return session;
}

std::string TexteSession(const Session &session) {
  std::string texte = std::string(kTitre) + "\n";
  for (const EtatControle &c : session.controles) {
    Ajoute(texte, kControle, {c.nom, std::to_string(c.indice), c.valeur});
  }
  const EtatFeuille &f = session.feuille;
  Ajoute(texte, kFeuille, {Court(f.origine.latitude), Court(f.origine.longitude), Booleen(f.grille)});
  const auto couleur = [&](std::size_t i) { return std::to_string(f.droites.at(i)); };
  Ajoute(texte, kDroites, {couleur(0), couleur(1), couleur(2), couleur(3)});
  Ajoute(texte, kTransports, {f.transportsDroite, f.cible, f.transportsEstime});
  Ajoute(texte, kEstime, {Court(f.estime.latitude), Court(f.estime.longitude)});
  if (session.objets) {
    Ajoute(texte, kObjets, {*session.objets});
  }
  return texte.append(kFin) + "\n";
}

std::optional<Session> LitSession(std::string_view texte) {
  const std::vector<std::string_view> lignes = Lignes(texte);
  if (lignes.size() < 2 || lignes.front() != kTitre || lignes.back() != kFin) {
    return std::nullopt;
  }
  Session session;
  const bool lue = Passe([&] {
    std::for_each(lignes.begin() + 1, lignes.end() - 1,
                  [&](std::string_view ligne) { LitLigne(Parties(ligne), session); });
  });
  return lue ? std::optional(std::move(session)) : std::nullopt;
}

void OuvreReprise(Bureau &bureau) {
  const std::filesystem::path &dossier = bureau.dossiers.utilisateur;
  bureau.reprise = std::make_unique<Sauvegarde>(dossier / kFichierReprise, dossier / kDerniereReprise);
}

void GardeSession(Bureau &bureau) {
  if (bureau.reprise) {
    bureau.reprise->Donne(TexteSession(PriseSession(bureau)));
  }
}

void FermeReprise(Bureau &bureau) {
  if (bureau.reprise) {
    bureau.reprise->Abandonne();
  }
}

} // namespace velmaris
