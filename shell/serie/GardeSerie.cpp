#include "shell/serie/GardeSerie.hpp"

#include "shell/complements/Mots.hpp"
#include "shell/complements/ReglagesLus.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/serie/AstresListe.hpp"
#include "shell/serie/LectureChamps.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <sstream>
#include <string_view>
#include <vector>

namespace velmaris {
namespace {

constexpr std::string_view kCle = "Serie";
constexpr char kFin = '|'; ///< between the parts of a line
constexpr double kDegresMax = 360;
constexpr double kSecondesMax = 1E11;

/// The fields that are kept.
std::array<Controle *, 13> ChampsGardes(FenetreSerie &f) {
  return {&f.Text1[0], &f.Text1[1], &f.Text1[2], &f.Text1[3], &f.Text2[0], &f.Text2[1], &f.Text2[2],
          &f.Text2[3], &f.Text2[4], &f.Text3[0], &f.Text3[1], &f.Text6[0], &f.Text6[1]};
}

std::string Nombre(double valeur) {
  std::ostringstream flot;
  flot.imbue(std::locale::classic());
  flot.precision(15);
  flot << valeur;
  return flot.str();
}

std::string Nombre(const std::optional<double> &valeur) { return valeur ? Nombre(*valeur) : std::string(); }

/// An instant to the microsecond, as seconds since 1970.
std::string Instant(const InstantUTC &utc) { return Nombre(SecondesEntre(UTCDeSecondes(0), utc)); }

std::vector<std::string> Parties(std::string_view ligne) {
  std::vector<std::string> parties(1);
  for (const char c : ligne) {
    if (c == kFin) {
      parties.emplace_back();
    } else {
      parties.back() += c;
    }
  }
  return parties;
}

std::optional<InstantUTC> LitInstantGarde(const std::string &texte) {
  const auto secondes = LitNombreBorne(texte, -kSecondesMax, kSecondesMax);
  return secondes ? std::optional(PlusTard(UTCDeSecondes(0), *secondes)) : std::nullopt;
}

/// A number of an enumeration or a list.
std::size_t LitRang(const std::string &texte, std::size_t nombre) {
  const auto rang = LitNombreBorne(texte, 0, static_cast<double>(nombre) - 1);
  return static_cast<std::size_t>(rang.value_or(0));
}

std::string EcritDistance(const DistanceListee &d) {
  const MesureLunaire &m = d.mesure;
  std::string ligne = "D";
  for (const std::string &partie :
       {Instant(m.montre), Nombre(m.lecture), Nombre(d.hauteurLune), Nombre(d.hauteurAstre),
        std::to_string(PlaceDansLaListe(m.astre, false)), std::to_string(static_cast<int>(m.bordLune)),
        std::to_string(static_cast<int>(m.bordAstre)), std::to_string(static_cast<int>(m.contactLune)),
        std::to_string(static_cast<int>(m.contactAstre)), std::string(m.ecartee ? "1" : "0")}) {
    ligne += kFin + partie;
  }
  return ligne + "\n";
}

void LitLectureGardee(SerieOuverte &p, const std::vector<std::string> &parties) {
  constexpr std::size_t kNombre = 4;
  const auto utc = parties.size() == kNombre ? LitInstantGarde(parties[1]) : std::nullopt;
  if (utc) {
    p.lectures.push_back({*utc, LitNombreBorne(parties[2], 0, kDegresMax), parties[3] == "1"});
  }
}

void LitDistanceGardee(SerieOuverte &p, const std::vector<std::string> &parties) {
  constexpr std::size_t kNombre = 11;
  constexpr std::size_t kTrois = 3;
  const auto montre = parties.size() == kNombre ? LitInstantGarde(parties[1]) : std::nullopt;
  const auto lecture = montre ? LitNombreBorne(parties[2], 0, kDegresMax) : std::nullopt;
  if (!lecture) {
    return;
  }
  DistanceListee d;
  d.hauteurLune = LitNombreBorne(parties[3], 0, kDegresMax);
  d.hauteurAstre = LitNombreBorne(parties[4], 0, kDegresMax);
  MesureLunaire &m = d.mesure;
  m.montre = *montre;
  m.lecture = *lecture;
  const std::vector<Astre> &astres = AstresAChoisir(false);
  m.astre = astres[LitRang(parties[5], astres.size())];
  m.bordLune = static_cast<BordDistance>(LitRang(parties[6], kTrois));
  m.bordAstre = static_cast<BordDistance>(LitRang(parties[7], kTrois));
  m.contactLune = static_cast<Contact>(LitRang(parties[8], kTrois));
  m.contactAstre = static_cast<Contact>(LitRang(parties[9], kTrois));
  m.ecartee = parties[10] == "1";
  p.distances.push_back(d);
}

/// The line of the fields: their texts, then body, limb, horizon.
bool LitChampsGardes(FenetreSerie &f, const std::vector<std::string> &parties) {
  const auto champs = ChampsGardes(f);
  constexpr std::size_t kChoix = 3;
  if (parties.size() != champs.size() + kChoix + 1) {
    return false;
  }
  for (std::size_t i = 0; i < champs.size(); ++i) {
    champs.at(i)->texte = parties[i + 1];
  }
  PoseChoisi(f.Combo1, LitRang(parties[champs.size() + 1], AstresAChoisir(true).size()));
  PoseChoisi(f.Combo2, LitRang(parties[champs.size() + 2], f.MotBord.size()));
  f.Check1.valeur = parties[champs.size() + 3] == "1" ? 1 : 0;
  return true;
}

/// Whether a kept text is of these days, by the date of its position.
bool EstDeCesJours(const Bureau &bureau, const std::vector<std::string> &champs) {
  constexpr double kDeuxJours = 2 * 86400.0;
  const auto moment = champs.size() > 2 ? LitMomentTape(champs[1], champs[2]) : std::nullopt;
  return moment && std::fabs(SecondesEntre(*moment, PresentUTC(bureau))) <= kDeuxJours;
}

} // namespace

std::string TexteSerie(Bureau &bureau) {
  FenetreSerie &f = bureau.fenetreSerie;
  std::string texte = "C";
  for (const Controle *champ : ChampsGardes(f)) {
    std::string mots = champ->texte;
    std::erase_if(mots, [](char c) { return c == kFin || c == '\n'; });
    texte += kFin + mots;
  }
  for (const int choix : {f.Combo1.rang, f.Combo2.rang, f.Check1.valeur}) {
    texte += kFin + std::to_string(std::max(0, choix));
  }
  texte += "\n";
  for (const LectureListee &l : bureau.serie.lectures) {
    texte +=
        std::string("L") + kFin + Instant(l.utc) + kFin + Nombre(l.lecture) + kFin + (l.ecartee ? "1" : "0") + "\n";
  }
  for (const DistanceListee &d : bureau.serie.distances) {
    texte += EcritDistance(d);
  }
  return texte;
}

void GardeSerie(Bureau &bureau) {
  const std::string texte = TexteSerie(bureau);
  if (texte != LitReglage(bureau, kCle)) {
    EcritReglage(bureau, kCle, texte);
  }
}

bool ReprendSerieGardee(Bureau &bureau) {
  std::istringstream flot(LitReglage(bureau, kCle));
  std::string ligne;
  const bool premiere = static_cast<bool>(std::getline(flot, ligne));
  const bool vide = flot.peek() == std::istringstream::traits_type::eof();
  if (!premiere || (vide && !EstDeCesJours(bureau, Parties(ligne))) ||
      !LitChampsGardes(bureau.fenetreSerie, Parties(ligne))) {
    return false;
  }
  SerieOuverte &p = bureau.serie;
  p.lectures.clear();
  p.distances.clear();
  while (std::getline(flot, ligne)) {
    ligne.starts_with('L') ? LitLectureGardee(p, Parties(ligne)) : LitDistanceGardee(p, Parties(ligne));
  }
  return true;
}

} // namespace velmaris
