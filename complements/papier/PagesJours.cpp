#include "complements/almanach/Arrondis.hpp"
#include "complements/papier/PartiesAlmanach.hpp"

#include <array>
#include <cmath>
#include <cstdlib>

namespace velmaris {
namespace {

using Mot = MotAlmanach;

constexpr std::size_t kHeures = 24;
constexpr std::size_t kGroupe = 6;     ///< hours between two gaps
constexpr double kJeu = 0.3;           ///< lines of such a gap
constexpr double kLignesDuJour = 27.3; ///< date, 24 hours, their gaps, v and d
constexpr double kLignesTitre = 2.4;
constexpr std::array kPlanetes{Mot::Venus, Mot::Mars, Mot::Jupiter, Mot::Saturne};
constexpr Encre kFilet{0.25, 0.65};

/// How the hours of a page stand.
struct Reglure {
  ZonePage boite;
  double interligne = 0;
  double taille = 0;
};

Reglure ReglureDe(const Feuillet &page, double chiffres) {
  constexpr int kJours = 3;
  Reglure r{ZoneDe(page)};
  r.interligne = r.boite.Hauteur() / (kLignesTitre + kJours * kLignesDuJour);
  r.taille = TailleQuiTient(r.boite.Largeur(), chiffres, r.interligne);
  return r;
}

std::string DateLongue(const CadreAlmanach &c, const DateCivile &date) {
  return TexteDateAlmanach(date.jour, date.mois, date.annee, c.mots);
}

/// The date with its day of the week.
std::string JourDit(const CadreAlmanach &c, const DateCivile &date) {
  constexpr double kUnLundi = 2451546.5; // 3 January 2000
  const auto jours = static_cast<long>(std::floor(UTCDe({date.annee, date.mois, date.jour}).jour - kUnLundi));
  const auto rang = static_cast<std::size_t>((jours % 7 + 7) % 7);
  return c.mots.textes[static_cast<std::size_t>(Mot::Lundi) + rang] + ' ' + DateLongue(c, date);
}

std::string TitreJours(const CadreAlmanach &c, const PeriodeAlmanach &p) {
  const DateCivile &de = c.almanach.jours[p.premier].date;
  if (p.nombre == 1) {
    return DateLongue(c, de);
  }
  const DateCivile &a = c.almanach.jours[p.premier + p.nombre - 1].date;
  return DateLongue(c, de) + ' ' + c.mots[Mot::Au] + ' ' + DateLongue(c, a);
}

std::string Deux(std::size_t n) { return (n < 10 ? "0" : "") + std::to_string(n); }

/// The hours of all days of a page, with what stands over and under each day.
/// @param rangee  texts of an hour, the hour's own first
/// @param pied    texts of a day's last row
template <class Rangee, class Pied>
void PoseHeures(Feuillet &page, const Reglure &r, const CadreAlmanach &c, const PeriodeAlmanach &p,
                const std::vector<Tabulation> &colonnes, Rangee &&rangee, Pied &&pied) {
  double y = r.boite.haut + kLignesTitre * r.interligne;
  for (std::size_t j = p.premier; j < p.premier + p.nombre; ++j) {
    const JourAlmanach &jour = c.almanach.jours[j];
    const double haut = y;
    page.Mot({r.boite.gauche, y + r.interligne}, JourDit(c, jour.date), {.taille = r.taille, .gras = true});
    y += 1.1 * r.interligne;
    for (std::size_t h = 0; h < kHeures; ++h) {
      y += (h > 0 && h % kGroupe == 0 ? 1 + kJeu : 1) * r.interligne;
      std::vector<std::string> textes = rangee(jour, h);
      PoseRangee(page, y, {colonnes.front()}, {Deux(h)}, {.taille = r.taille, .gras = true});
      PoseRangee(page, y, {colonnes.begin() + 1, colonnes.end()}, textes, {.taille = r.taille});
    }
    y += r.interligne;
    PoseRangee(page, y, {colonnes.begin() + 1, colonnes.end()}, pied(jour), {.taille = r.taille, .italique = true});
    y = haut + kLignesDuJour * r.interligne;
    page.Trait({r.boite.gauche, haut + (kLignesDuJour - 0.1) * r.interligne},
               {colonnes.back().x, haut + (kLignesDuJour - 0.1) * r.interligne}, kFilet);
  }
}

/// Heads of the hours' columns: names above, what is told below.
void PoseTetes(Feuillet &page, const Reglure &r, const std::vector<Tabulation> &colonnes,
               const std::vector<std::string> &noms, const std::vector<std::string> &sous) {
  const double y = r.boite.haut + r.interligne;
  PoseRangee(page, y, colonnes, noms, {.taille = r.taille + 0.5, .gras = true});
  PoseRangee(page, y + r.interligne, colonnes, sous, {.taille = r.taille, .gras = true});
  page.Trait({r.boite.gauche, y + 1.3 * r.interligne}, {colonnes.back().x, y + 1.3 * r.interligne}, kFilet);
}

std::string Taux(const std::string &nom, double minutes, bool signe, char virgule) {
  const long dixiemes = ArrondiDixieme(minutes);
  return nom + ' ' + TexteDixiemes(signe ? dixiemes : std::labs(dixiemes), virgule);
}

std::string Moment(const std::vector<double> &heures, const CadreAlmanach &c) {
  return heures.empty() ? c.mots[Mot::PasCeJour] : TexteHeureMinutes(MinutesDe(heures.front()));
}

/// The stars, and below them what the planets' days tell once.
void PoseEtoiles(Feuillet &page, const Reglure &r, const CadreAlmanach &c, const PeriodeAlmanach &p, double gauche) {
  const char virgule = VirguleDe(c.mots);
  const double fin = r.boite.droite;
  const double dec = LargeurChiffres(r.taille, 9.3);
  const std::vector<Tabulation> colonnes{{gauche, Ancrage::Gauche}, {fin - dec}, {fin}};
  double y = r.boite.haut + r.interligne;
  page.Mot({gauche, y}, c.mots[Mot::EtoilesLe] + ' ' + std::to_string(p.milieu.jour),
           {.taille = r.taille, .gras = true});
  y += r.interligne;
  PoseRangee(page, y, colonnes, {"", c.mots[Mot::Sha], c.mots[Mot::Declinaison]}, {.taille = r.taille, .gras = true});
  page.Trait({gauche, y + 0.3 * r.interligne}, {fin, y + 0.3 * r.interligne}, kFilet);
  y += 0.3 * r.interligne;
  for (std::size_t i = 0; i < p.etoiles.size(); ++i) {
    const EtoileAlmanach &e = p.etoiles[i];
    y += (i > 0 && i % 5 == 0 ? 1 + kJeu : 1) * r.interligne;
    PoseRangee(
        page, y, colonnes,
        {e.nom, TexteAngle(DixiemesUnTour(e.sha), virgule, 1), TexteDeclinaison(DixiemesDe(e.declinaison), virgule)},
        {.taille = r.taille});
  }
  y += 0.6 * r.interligne;
  page.Trait({gauche, y}, {fin, y}, kFilet);
  const double pas = (fin - gauche) / 4;
  const std::vector<Tabulation> jours{{gauche, Ancrage::Gauche}, {gauche + 2.1 * pas}, {gauche + 2.9 * pas}, {fin}};
  PoseRangee(page, y += r.interligne, jours, {"", c.mots[Mot::Magnitude], c.mots[Mot::Hp], c.mots[Mot::Passage]},
             {.taille = r.taille, .gras = true});
  for (std::size_t j = p.premier; j < p.premier + p.nombre; ++j) {
    const JourAlmanach &jour = c.almanach.jours[j];
    y += 0.2 * r.interligne;
    PoseRangee(page, y += r.interligne, jours,
               {std::to_string(jour.date.jour) + "  " + c.mots[Mot::Belier], "", "", Moment(jour.belier, c)},
               {.taille = r.taille});
    for (std::size_t i = 0; i < kPlanetes.size(); ++i) {
      const AstreAlmanach &a = jour.astres[kVenusAlmanach + i];
      PoseRangee(page, y += r.interligne, jours,
                 {"    " + c.mots[kPlanetes[i]], TexteDixiemes(ArrondiDixieme(a.magnitude), virgule),
                  TexteDixiemes(ArrondiDixieme(a.hp), virgule), Moment(a.meridien, c)},
                 {.taille = r.taille});
    }
  }
}

} // namespace

Feuillet PagePlanetes(const CadreAlmanach &c, const PeriodeAlmanach &p) {
  constexpr double kChiffres = 118;
  Feuillet page = PageTitree(c.format, TitreJours(c, p), c.mots[Mot::PageGauche]);
  const Reglure r = ReglureDe(page, kChiffres);
  const char virgule = VirguleDe(c.mots);
  const std::vector<Tabulation> colonnes =
      ColonnesDroites(r.boite.gauche, r.taille, {2.3, 8.6, 9.2, 9.1, 9.2, 9.1, 9.2, 9.1, 9.2, 9.1});
  std::vector<std::string> noms{"", c.mots[Mot::Belier]};
  std::vector<std::string> sous{c.mots[Mot::Heure], c.mots[Mot::Gha]};
  for (const MotAlmanach planete : kPlanetes) {
    noms.insert(noms.end(), {c.mots[planete], ""});
    sous.insert(sous.end(), {c.mots[Mot::Gha], c.mots[Mot::Declinaison]});
  }
  PoseTetes(page, r, colonnes, noms, sous);
  const auto rangee = [&](const JourAlmanach &jour, std::size_t h) {
    const HeureAlmanach &heure = jour.heures[h];
    std::vector<std::string> textes{TexteAngle(DixiemesUnTour(heure.belier), virgule, 1)};
    for (std::size_t i = kVenusAlmanach; i < kErrantsAlmanach; ++i) {
      textes.push_back(TexteAngle(DixiemesUnTour(heure.astres[i].gha), virgule, 1));
      textes.push_back(TexteDeclinaison(DixiemesDe(heure.astres[i].declinaison), virgule));
    }
    return textes;
  };
  const auto pied = [&](const JourAlmanach &jour) {
    std::vector<std::string> textes{""};
    for (std::size_t i = kVenusAlmanach; i < kErrantsAlmanach; ++i) {
      textes.push_back(Taux(c.mots[Mot::V], jour.astres[i].v, true, virgule));
      textes.push_back(Taux(c.mots[Mot::D], jour.astres[i].d, false, virgule));
    }
    return textes;
  };
  PoseHeures(page, r, c, p, colonnes, rangee, pied);
  PoseEtoiles(page, r, c, p, colonnes.back().x + LargeurChiffres(r.taille, 2.5));
  return page;
}

namespace {

/// A time at the horizon, or the sign of why there is none.
/// @param nuit  the Sun's twilights: what stays above is a twilight all night where the Sun itself sets
std::string HeureOuSigne(const CadreAlmanach &c, const HeuresHorizon &h, bool nuit = false) {
  switch (h.absence) {
  case RaisonAbsence::Aucune:
    return h.heures.empty() ? c.mots[Mot::PasCeJour] : TexteHeureMinutes(MinutesDe(h.heures.front()));
  case RaisonAbsence::ToujoursAuDessus:
    return c.mots[nuit ? Mot::TouteLaNuit : Mot::ToujoursDessus];
  case RaisonAbsence::ToujoursAuDessous:
    return c.mots[Mot::ToujoursDessous];
  default:
    return c.mots[Mot::PasCeJour];
  }
}

std::string TexteLatitudeAlmanach(double latitude, char virgule) {
  return (latitude < 0 ? "S " : latitude > 0 ? "N " : "") + TexteCourt(std::fabs(latitude), virgule);
}

/// A block of the right page's right side.
struct Bloc {
  double gauche = 0;
  double droite = 0;
  double taille = 0;
  double interligne = 0;
};

double PoseCrepuscules(Feuillet &page, const CadreAlmanach &c, const PeriodeAlmanach &p, const Bloc &b, double y) {
  const char virgule = VirguleDe(c.mots);
  const Graphie gras{.taille = b.taille, .gras = true};
  page.Mot({b.gauche, y += b.interligne}, c.mots[Mot::Crepuscules] + ' ' + std::to_string(p.milieu.jour), gras);
  std::vector<Tabulation> colonnes{{b.gauche + LargeurChiffres(b.taille, 4.8)}};
  const double pas = (b.droite - colonnes.front().x) / 6;
  for (int i = 1; i <= 6; ++i) {
    colonnes.push_back({colonnes.front().x + pas * i});
  }
  PoseRangee(page, y += 1.2 * b.interligne, colonnes,
             {c.mots[Mot::Latitude], c.mots[Mot::Nautique], c.mots[Mot::Civil], c.mots[Mot::Lever],
              c.mots[Mot::Coucher], c.mots[Mot::Civil], c.mots[Mot::Nautique]},
             gras);
  page.Trait({b.gauche, y + 0.3 * b.interligne}, {b.droite, y + 0.3 * b.interligne}, kFilet);
  y += 0.3 * b.interligne;
  for (std::size_t i = 0; i < p.soleil.size(); ++i) {
    const SoleilHorizon &s = p.soleil[i];
    const bool nuit = s.lever.absence != RaisonAbsence::ToujoursAuDessus;
    y += (i > 0 && i % 5 == 0 ? 1 + kJeu : 1) * b.interligne;
    PoseRangee(page, y, colonnes, {TexteLatitudeAlmanach(c.almanach.demande.latitudes[i], virgule)}, gras);
    PoseRangee(page, y, {colonnes.begin() + 1, colonnes.end()},
               {HeureOuSigne(c, s.nautiqueMatin, nuit), HeureOuSigne(c, s.civilMatin, nuit), HeureOuSigne(c, s.lever),
                HeureOuSigne(c, s.coucher), HeureOuSigne(c, s.civilSoir, nuit), HeureOuSigne(c, s.nautiqueSoir, nuit)},
               {.taille = b.taille});
  }
  return y + b.interligne;
}

/// How much later than a day after this event the next one is, minutes; nothing where there is none within two days.
/// @param surlendemain  of the day after the next, which counts where the next has none
std::string Ecart(const HeuresHorizon &jour, const HeuresHorizon &lendemain, const HeuresHorizon &surlendemain) {
  constexpr long kJour = 1440;
  if (jour.heures.empty()) {
    return "";
  }
  long suivant = 0; // minutes from the beginning of the next day
  if (jour.heures.size() > 1) {
    suivant = MinutesDe(jour.heures[1]) - kJour;
  } else if (!lendemain.heures.empty()) {
    suivant = MinutesDe(lendemain.heures.front());
  } else if (lendemain.absence == RaisonAbsence::AutreJour && !surlendemain.heures.empty()) {
    suivant = MinutesDe(surlendemain.heures.front()) + kJour;
  } else {
    return "";
  }
  const long ecart = suivant - MinutesDe(jour.heures.front());
  return (ecart < 0 ? "" : "+") + std::to_string(ecart);
}

/// The Moon's rises and sets of a day of a page, or of one of the two days after the last.
const LuneHorizon &LuneDe(const Almanach &almanach, std::size_t jour, std::size_t latitude) {
  const std::size_t nombre = almanach.jours.size();
  if (jour < nombre) {
    return almanach.jours[jour].lune[latitude];
  }
  return almanach.suivants[jour - nombre][latitude];
}

/// Heads of the Moon's columns: rise and set above, the days below.
double PoseTetesLune(Feuillet &page, const CadreAlmanach &c, const PeriodeAlmanach &p, const Bloc &b,
                     const std::vector<Tabulation> &colonnes, double y) {
  const Graphie gras{.taille = b.taille, .gras = true};
  page.Mot({b.gauche, y += b.interligne}, c.mots[Mot::LeverCoucherLune], gras);
  y += 1.2 * b.interligne;
  const double pas = (b.droite - colonnes.front().x) / 2;
  PoseRangee(page, y, {{colonnes.front().x + pas / 2, Ancrage::Milieu}, {b.droite - pas / 2, Ancrage::Milieu}},
             {c.mots[Mot::Lever], c.mots[Mot::Coucher]}, gras);
  std::vector<std::string> tetes{c.mots[Mot::Latitude]};
  for (std::size_t i = 0; i < 6; ++i) {
    const std::size_t j = i % 3;
    tetes.insert(tetes.end(), {j < p.nombre ? std::to_string(c.almanach.jours[p.premier + j].date.jour) : "", ""});
  }
  PoseRangee(page, y += b.interligne, colonnes, tetes, gras);
  page.Trait({b.gauche, y + 0.3 * b.interligne}, {b.droite, y + 0.3 * b.interligne}, kFilet);
  return y + 0.3 * b.interligne;
}

double PoseLevers(Feuillet &page, const CadreAlmanach &c, const PeriodeAlmanach &p, const Bloc &b, double y) {
  constexpr double kPetit = 0.9; ///< of the size, in which differences stand
  const char virgule = VirguleDe(c.mots);
  std::vector<Tabulation> colonnes{{b.gauche + LargeurChiffres(b.taille, 4.8)}};
  const double pas = (b.droite - colonnes.front().x) / 6;
  for (std::size_t i = 0; i < 6; ++i) {
    const double gauche = colonnes.front().x + pas * static_cast<double>(i);
    colonnes.push_back({gauche + 0.58 * pas});
    colonnes.push_back({gauche + pas});
  }
  y = PoseTetesLune(page, c, p, b, colonnes, y);
  for (std::size_t i = 0; i < c.almanach.demande.latitudes.size(); ++i) {
    std::vector<std::string> heures(colonnes.size());
    std::vector<std::string> ecarts(colonnes.size());
    heures[0] = TexteLatitudeAlmanach(c.almanach.demande.latitudes[i], virgule);
    y += (i > 0 && i % 5 == 0 ? 1 + kJeu : 1) * b.interligne;
    PoseRangee(page, y, colonnes, heures, {.taille = b.taille, .gras = true});
    heures[0].clear();
    for (std::size_t j = 0; j < p.nombre; ++j) {
      const std::size_t k = p.premier + j;
      const auto lune = [&](std::size_t apres) -> const LuneHorizon & { return LuneDe(c.almanach, k + apres, i); };
      heures[2 * j + 1] = HeureOuSigne(c, lune(0).lever);
      ecarts[2 * j + 2] = Ecart(lune(0).lever, lune(1).lever, lune(2).lever);
      heures[2 * j + 7] = HeureOuSigne(c, lune(0).coucher);
      ecarts[2 * j + 8] = Ecart(lune(0).coucher, lune(1).coucher, lune(2).coucher);
    }
    PoseRangee(page, y, colonnes, heures, {.taille = b.taille});
    PoseRangee(page, y, colonnes, ecarts, {.taille = kPetit * b.taille});
  }
  return y + b.interligne;
}

/// Equation of time, passages, the Moon's face.
double PoseJournees(Feuillet &page, const CadreAlmanach &c, const PeriodeAlmanach &p, const Bloc &b, double y) {
  const char virgule = VirguleDe(c.mots);
  const Graphie gras{.taille = b.taille, .gras = true};
  std::vector<Tabulation> colonnes;
  const double largeur = b.droite - b.gauche;
  for (const double part : {0.05, 0.16, 0.275, 0.43, 0.54, 0.645, 0.73, 0.87, 1.0}) {
    colonnes.push_back({b.gauche + part * largeur});
  }
  PoseRangee(page, y += b.interligne,
             {{b.gauche + 0.165 * largeur, Ancrage::Milieu},
              {b.gauche + 0.385 * largeur, Ancrage::Milieu},
              {b.gauche + 0.575 * largeur, Ancrage::Milieu},
              {b.gauche + 0.85 * largeur, Ancrage::Milieu}},
             {c.mots[Mot::EquationTemps], c.mots[Mot::Soleil], c.mots[Mot::Lune] + ", " + c.mots[Mot::Passage],
              c.mots[Mot::Lune]},
             gras);
  PoseRangee(page, y += b.interligne, colonnes,
             {c.mots[Mot::Jour], "0 h", "12 h", c.mots[Mot::Passage], c.mots[Mot::Superieur], c.mots[Mot::Inferieur],
              c.mots[Mot::Age], c.mots[Mot::Eclairee], c.mots[Mot::DemiDiametre]},
             gras);
  page.Trait({b.gauche, y + 0.3 * b.interligne}, {b.droite, y + 0.3 * b.interligne}, kFilet);
  y += 0.3 * b.interligne;
  for (std::size_t j = p.premier; j < p.premier + p.nombre; ++j) {
    const JourAlmanach &jour = c.almanach.jours[j];
    const AstreAlmanach &lune = jour.astres[kLuneAlmanach];
    PoseRangee(page, y += b.interligne, colonnes,
               {std::to_string(jour.date.jour), TexteEquation(jour.equation0), TexteEquation(jour.equation12),
                Moment(jour.astres[kSoleilAlmanach].meridien, c), Moment(lune.meridien, c),
                Moment(jour.luneInferieur, c), TexteDixiemes(ArrondiDixieme(jour.ageLune), virgule),
                std::to_string(std::lround(jour.partLune * 100)) + " %",
                TexteDixiemes(ArrondiDixieme(lune.demiDiametre), virgule)},
               {.taille = b.taille});
  }
  return y + b.interligne;
}

void PoseHorizons(Feuillet &page, const CadreAlmanach &c, const PeriodeAlmanach &p, const Bloc &b, double haut) {
  double y = PoseJournees(page, c, p, b, haut);
  if (!p.soleil.empty()) {
    y = PoseCrepuscules(page, c, p, b, y + 0.4 * b.interligne);
    y = PoseLevers(page, c, p, b, y + 0.4 * b.interligne);
  }
  for (const MotAlmanach mot : {Mot::LegendeSignes1, Mot::LegendeSignes2, Mot::LegendeSignes3, Mot::LegendeSignes4}) {
    page.Mot({b.gauche, y += b.interligne}, c.mots[mot], {.taille = b.taille - 0.4, .italique = true});
  }
}

} // namespace

Feuillet PageSoleilLune(const CadreAlmanach &c, const PeriodeAlmanach &p) {
  constexpr double kChiffres = 118;
  constexpr std::size_t kLuneLongue = 4; ///< columns before the Moon's
  Feuillet page = PageTitree(c.format, TitreJours(c, p), c.mots[Mot::PageDroite]);
  const Reglure r = ReglureDe(page, kChiffres);
  const char virgule = VirguleDe(c.mots);
  const std::vector<Tabulation> colonnes =
      ColonnesDroites(r.boite.gauche, r.taille, {2.3, 8.6, 9.1, 9.4, 4.9, 9.3, 4.9, 5.2});
  std::vector<std::string> noms(colonnes.size());
  noms[1] = c.mots[Mot::Soleil];
  noms[kLuneLongue - 1] = c.mots[Mot::Lune];
  PoseTetes(page, r, colonnes, noms,
            {c.mots[Mot::Heure], c.mots[Mot::Gha], c.mots[Mot::Declinaison], c.mots[Mot::Gha], c.mots[Mot::V],
             c.mots[Mot::Declinaison], c.mots[Mot::D], c.mots[Mot::Hp]});
  const auto rangee = [&](const JourAlmanach &jour, std::size_t h) {
    const HeureAlmanach &heure = jour.heures[h];
    const PlaceAlmanach &soleil = heure.astres[kSoleilAlmanach];
    const PlaceAlmanach &lune = heure.astres[kLuneAlmanach];
    return std::vector<std::string>{TexteAngle(DixiemesUnTour(soleil.gha), virgule, 1),
                                    TexteDeclinaison(DixiemesDe(soleil.declinaison), virgule),
                                    TexteAngle(DixiemesUnTour(lune.gha), virgule, 1),
                                    TexteDixiemes(ArrondiDixieme(heure.vLune), virgule),
                                    TexteDeclinaison(DixiemesDe(lune.declinaison), virgule),
                                    TexteDixiemes(std::labs(ArrondiDixieme(heure.dLune)), virgule),
                                    TexteDixiemes(ArrondiDixieme(heure.hpLune), virgule)};
  };
  const auto pied = [&](const JourAlmanach &jour) {
    const AstreAlmanach &soleil = jour.astres[kSoleilAlmanach];
    return std::vector<std::string>{Taux(c.mots[Mot::V], soleil.v, true, virgule),
                                    Taux(c.mots[Mot::D], soleil.d, false, virgule), "",
                                    Taux(c.mots[Mot::DemiDiametre], soleil.demiDiametre, false, virgule)};
  };
  PoseHeures(page, r, c, p, colonnes, rangee, pied);
  const Bloc bloc{colonnes.back().x + LargeurChiffres(r.taille, 2.5), r.boite.droite, r.taille, 1.13 * r.interligne};
  PoseHorizons(page, c, p, bloc, r.boite.haut);
  return page;
}

} // namespace velmaris
