#include "shell/Reprise.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/bureau/Sauvegarde.hpp"
#include "shell/carte/FichierObjets.hpp"
#include "shell/visee/EtatPanneau.hpp"
#include "shell/visee/ReduitVisee.hpp"

#include <algorithm>
#include <charconv>
#include <initializer_list>
#include <utility>

namespace velmaris {
namespace {

constexpr std::string_view kTitre = "velmaris reprise 2"; ///< of this form of the file
constexpr std::string_view kFin = "fin";
constexpr std::string_view kControle = "controle"; ///< name, index, value
constexpr std::string_view kFeuille = "feuille";   ///< latitude and longitude of its origin, grid, chart
constexpr std::string_view kDroites = "droites";   ///< four colours
constexpr std::string_view kTransports = "transports";
constexpr std::string_view kEstime = "estime";     ///< latitude and longitude, their captions
constexpr std::string_view kValeurs = "valeurs";   ///< six figures of a reduction
constexpr std::string_view kResultat = "resultat"; ///< body, intercept, azimuth, tool tip, eight details
constexpr std::string_view kReduite = "reduite";   ///< the sight that was reduced, as its file
constexpr std::string_view kDite = "dite";         ///< four figures of that sight as it was told, and the sight
constexpr std::string_view kObjets = "objets";
constexpr std::string_view kPoint = "point"; ///< of the fix: identity, ticked, assumed error
constexpr std::ptrdiff_t kPremierDetail = 5; ///< part of a result's line
constexpr std::size_t kPartiesResultat = 12;
constexpr char kSeparateur = '\t';

std::string Booleen(bool vrai) { return vrai ? "1" : "0"; }

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

template <class Nombre> std::string Court(Nombre valeur) {
  std::array<char, 32> texte{};
  return {texte.data(), std::to_chars(texte.data(), texte.data() + texte.size(), valeur).ptr};
}

void AjouteResultat(std::string &texte, const EtatResultat &r) {
  const ValeursVisee &v = r.visee;
  const AffichageDroite &a = r.affichage;
  const auto &d = a.details;
  Ajoute(texte, kValeurs,
         {Court(v.LatEstimee), Court(v.LonEstimee), Court(v.HeureDecimale), Court(v.Azimut), Court(v.Intercept),
          Court(v.HauteurCalculee)});
  Ajoute(texte, kResultat,
         {r.astre, a.intercept, a.azimut, a.infobulle, d[0], d[1], d[2], d[3], d[4], d[5], d[6], d[7]});
  if (r.reduite) {
    Ajoute(texte, kReduite, {EcritLoP(*r.reduite)});
  }
  if (r.dite) {
    const ResultatDit &dit = r.dite->dit;
    Ajoute(texte, kDite,
           {Court(dit.Ho), Court(dit.Hc), Court(dit.azimut), Court(dit.intercept), EcritLoP(r.dite->observation)});
  }
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

Observation LitReduite(const std::string &texte) {
  TableLoP table;
  LitLignesLoP(texte, table);
  Observation observation;
  AppliqueLoP(table, observation);
  return observation;
}

void LitResultat(const std::vector<std::string> &p, EtatResultat &resultat) {
  AffichageDroite &a = resultat.affichage;
  resultat.astre = p[1];
  a.intercept = p[2];
  a.azimut = p[3];
  a.infobulle = p[4];
  std::copy_n(p.begin() + kPremierDetail, a.details.size(), a.details.begin());
}

/// One line of the file, by its kind and the number of its parts.
/// @throws Erreur 13 for a line of another form
void LitLigne(const std::vector<std::string> &p, Session &session) {
  EtatFeuille &f = session.feuille;
  const auto est = [&](std::string_view genre, std::size_t nombre) { return p[0] == genre && p.size() == nombre + 1; };
  ValeursVisee &v = session.resultat.visee;
  if (est(kControle, 3)) {
    session.controles.push_back({p[1], LitExact<int>(p[2]), p[3]});
  } else if (est(kFeuille, 4)) {
    f.origine = {LitExact<float>(p[1]), LitExact<float>(p[2])};
    f.grille = p[3] == "1";
    f.carte = p[4] == "1";
  } else if (est(kDroites, f.droites.size())) {
    std::transform(p.begin() + 1, p.end(), f.droites.begin(), LitExact<Couleur>);
  } else if (est(kTransports, 3)) {
    f.transportsDroite = p[1];
    f.cible = p[2];
    f.transportsEstime = p[3];
  } else if (est(kEstime, 4)) {
    f.estime = {LitExact<float>(p[1]), LitExact<float>(p[2])};
    f.estimeDite = {p[3], p[4]};
  } else if (est(kValeurs, 6)) {
    v = {LitExact<float>(p[1]), LitExact<float>(p[2]), LitExact<double>(p[3]),
         LitExact<float>(p[4]), LitExact<float>(p[5]), LitExact<float>(p[6])};
  } else if (est(kResultat, kPartiesResultat)) {
    LitResultat(p, session.resultat);
  } else if (est(kReduite, 1)) {
    session.resultat.reduite = LitReduite(p[1]);
  } else if (est(kDite, 5)) {
    session.resultat.dite = {
        LitReduite(p[5]),
        {LitExact<double>(p[1]), LitExact<double>(p[2]), LitExact<double>(p[3]), LitExact<double>(p[4])}};
  } else if (est(kObjets, 1)) {
    session.objets = p[1];
  } else if (est(kPoint, 3)) {
    session.point.push_back({p[1], p[2] == "1", p[3].empty() ? std::nullopt : std::optional(LitExact<double>(p[3]))});
  } else {
    throw Erreur(13);
  }
}

} // namespace

Session PriseSession(Bureau &bureau) {
  Session session;
  session.controles = PriseControles(bureau.donnees);
  session.resultat = PriseResultat(bureau);
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
  f.estimeDite = {bureau.donnees.LabLatEst.legende, bureau.donnees.LabLonEst.legende};
  f.carte = !DessinsCarte(bureau).empty();
  if (bureau.utilisateur.Modifie != 0) {
    session.objets = TexteObjets(bureau.utilisateur);
  }
  session.point = ViseesTenues(bureau.point);
  return session;
}

std::string TexteSession(const Session &session) {
  std::string texte = std::string(kTitre) + "\n";
  for (const EtatControle &c : session.controles) {
    Ajoute(texte, kControle, {c.nom, std::to_string(c.indice), c.valeur});
  }
  const EtatFeuille &f = session.feuille;
  Ajoute(texte, kFeuille, {Court(f.origine.latitude), Court(f.origine.longitude), Booleen(f.grille), Booleen(f.carte)});
  const auto couleur = [&](std::size_t i) { return std::to_string(f.droites.at(i)); };
  Ajoute(texte, kDroites, {couleur(0), couleur(1), couleur(2), couleur(3)});
  Ajoute(texte, kTransports, {f.transportsDroite, f.cible, f.transportsEstime});
  Ajoute(texte, kEstime, {Court(f.estime.latitude), Court(f.estime.longitude), f.estimeDite[0], f.estimeDite[1]});
  AjouteResultat(texte, session.resultat);
  if (session.objets) {
    Ajoute(texte, kObjets, {*session.objets});
  }
  for (const ViseeTenue &v : session.point) {
    Ajoute(texte, kPoint, {v.identite, Booleen(v.cochee), v.ecartType ? Court(*v.ecartType) : std::string()});
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
  bureau.sessionDepart = TexteSession(PriseSession(bureau));
  std::string laissee;
  if (bureau.reprise->misDeCote() && Passe([&] { laissee = LitFichier(dossier / kDerniereReprise); }) &&
      LitSession(laissee)) {
    // Until it is taken up or not it stays in its file: a death before that leaves it for another start.
    bureau.reprise->Donne(laissee);
    bureau.sessionLaissee = std::move(laissee);
  }
}

void GardeSession(Bureau &bureau) {
  if (!bureau.reprise || !bureau.sessionLaissee.empty()) {
    return;
  }
  std::string texte = TexteSession(PriseSession(bureau));
  if (texte != bureau.sessionDepart) {
    bureau.sessionDepart.clear();
    bureau.reprise->Donne(std::move(texte));
  }
}

void FermeReprise(Bureau &bureau) {
  if (bureau.reprise) {
    bureau.reprise->Abandonne();
  }
}

} // namespace velmaris
