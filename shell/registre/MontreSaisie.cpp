#include "shell/registre/MontreSaisie.hpp"

#include "foundations/Erreur.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/Registre.hpp"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstddef>

namespace velmaris {
namespace {

/// A number within limits.
/// @param vide  whether an empty text is 0
bool LitBorne(const std::string &texte, double max, bool vide, double &valeur) {
  if (SansBlancs(texte).empty()) {
    valeur = 0;
    return vide;
  }
  return Passe([&] { valeur = LitNombre(AvecPoint(SansBlancs(texte))); }) && std::fabs(valeur) <= max;
}

bool LitMoment(const std::string &texte, std::int64_t present, std::int64_t &instant) {
  if (SansBlancs(texte).empty()) {
    instant = present;
    return true;
  }
  ValeurDate date;
  if (!Passe([&] { date = LitDateHeure(SansBlancs(texte)); })) {
    return false;
  }
  const auto court = [](int n) { return static_cast<std::uint16_t>(n); };
  const TempsSysteme temps{court(date.annee),  court(date.mois),    0, court(date.jour), court(date.heure),
                           court(date.minute), court(date.seconde), 0};
  instant = std::chrono::floor<std::chrono::seconds>(MomentDe(temps)).time_since_epoch().count();
  return true;
}

std::string Signe(double valeur) {
  const std::string texte = Format(valeur, "0.0#");
  return (texte.starts_with('-') ? "" : "+") + texte;
}

/// One comparison in words: "21/06/2026 12:05:30   +2.5 s   -0.3 s/jour".
std::string MotsDeReleve(const Registre &f, const ReleveMontre &r) {
  const std::string utc = EcritInstant(r.instant);
  return utc.substr(8, 2) + "/" + utc.substr(5, 2) + "/" + utc.substr(0, 4) + " " + utc.substr(11, 8) + "   " +
         Signe(r.erreur) + " s   " + Signe(r.marche) + f.TexteParJour.legende;
}

} // namespace

ReleveSaisi LitReleve(const std::array<std::string, 3> &textes, std::int64_t present) {
  ReleveSaisi lu;
  lu.bons[0] = LitMoment(textes[0], present, lu.releve.instant);
  lu.bons[1] = LitBorne(textes[1], kErreurMax, false, lu.releve.erreur);
  lu.bons[2] = LitBorne(textes[2], kMarcheMax, true, lu.releve.marche);
  return lu;
}

void AccordeMontre(Bureau &bureau) {
  Registre &f = bureau.registre;
  std::vector<std::string> lignes;
  lignes.reserve(bureau.registreOuvert.montre.size());
  for (const ReleveMontre &releve : bureau.registreOuvert.montre) {
    lignes.push_back(MotsDeReleve(f, releve));
  }
  std::reverse(lignes.begin(), lignes.end());
  if (lignes != f.List1.liste) {
    f.List1.liste = std::move(lignes);
    f.List1.rang = -1;
  }
}

namespace registre {

void Command8_Click(Bureau &bureau, int /*indice*/) {
  Registre &f = bureau.registre;
  const auto present = std::chrono::floor<std::chrono::seconds>(MomentDe(bureau.horloge.source()));
  const ReleveSaisi lu =
      LitReleve({f.Text3[0].texte, f.Text3[1].texte, f.Text3[2].texte}, present.time_since_epoch().count());
  for (std::size_t i = 0; i < lu.bons.size(); ++i) {
    f.Text3.at(i).alerte = lu.bons.at(i) ? "" : f.TexteReleveRefuse.legende + f.Text3.at(i).infobulle;
  }
  const auto *const refuse = std::find(lu.bons.begin(), lu.bons.end(), false);
  if (refuse != lu.bons.end()) {
    const Controle &champ = f.Text3.at(static_cast<std::size_t>(refuse - lu.bons.begin()));
    Avise(bureau, f.Frame1.legende + " : " + champ.alerte);
    bureau.focus = &champ;
    return;
  }
  AjouteReleve(bureau, lu.releve);
  for (Controle &champ : f.Text3) {
    champ.texte.clear();
  }
}

void Text3_Change(Bureau &bureau, int indice) {
  bureau.registre.Text3.at(static_cast<std::size_t>(indice)).alerte.clear();
}

} // namespace registre
} // namespace velmaris
