#include "shell/papier/Papier.hpp"

#include "complements/almanach/CsvAlmanach.hpp"
#include "complements/papier/Canevas.hpp"
#include "complements/registre/TexteCsv.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Mots.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/ecran/ChoixSortie.hpp"
#include "shell/papier/CalculAlmanach.hpp"
#include "shell/papier/ClesPapier.hpp"
#include "shell/papier/MeteoPapier.hpp"
#include "shell/papier/MotsDesPages.hpp"
#include "shell/papier/SourcesPapier.hpp"
#include "shell/point/Point.hpp"
#include "shell/visee/Saisie.hpp"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

namespace velmaris {
namespace {

namespace fs = std::filesystem;
constexpr std::string_view kCle = "Papier";
constexpr int kMilliemes = 1000;
constexpr double kLatitudeVierge = 84; ///< degrees, past which a plain chart is none

OngletPapier OngletVu(const FenetrePapier &f) { return static_cast<OngletPapier>(std::max(0, f.Onglets1.rang)); }

PagesOuvertes &PagesVues(Bureau &bureau) {
  return bureau.papier.onglets.at(static_cast<std::size_t>(OngletVu(bureau.fenetrePapier)));
}

template <std::size_t N> void PoseListe(Controle &liste, const std::array<Controle, N> &mots) {
  liste.liste.clear();
  for (const Controle &mot : mots) {
    liste.liste.push_back(mot.legende);
  }
  liste.rang = std::clamp(liste.rang, 0, static_cast<int>(N) - 1);
  liste.texte = liste.liste.at(static_cast<std::size_t>(liste.rang));
}

/// The fields that are kept for the next start.
std::array<Controle *, 3> ChampsGardes(FenetrePapier &f) { return {&f.Text1[2], &f.Text3[0], &f.Text3[1]}; }

void GardeChamps(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  std::string texte = std::to_string(f.Combo1.rang) + "\n" + std::to_string(f.Combo2.rang) + "\n";
  for (const Controle *champ : ChampsGardes(f)) {
    texte += champ->texte + "\n";
  }
  EcritReglage(bureau, kCle, texte);
  GardeMeteo(bureau);
}

/// The fields as they were used last, else what most days ask for: the month from today on, and the latitude that the
/// panel has with two of each side of it.
void RemplitChamps(Bureau &bureau) {
  constexpr double kJour = 86400;
  constexpr int kJours = 30;
  FenetrePapier &f = bureau.fenetrePapier;
  const InstantUTC debut = UTCDe(JourPresent(bureau));
  f.Text1[0].texte = TexteDate(debut);
  f.Text1[1].texte = TexteDate(PlusTard(debut, (kJours - 1) * kJour));
  for (Controle &coche : f.Check1) {
    coche.valeur = 1;
  }
  const std::string garde = LitReglage(bureau, kCle);
  std::string_view lignes = garde;
  if (!lignes.empty()) {
    f.Combo1.rang = static_cast<int>(Val(PrendLigne(lignes)));
    f.Combo2.rang = static_cast<int>(Val(PrendLigne(lignes)));
    for (Controle *champ : ChampsGardes(f)) {
      champ->texte = PrendLigne(lignes);
    }
    return;
  }
  const double latitude = LatitudeEstimee(LitPanneau(bureau.donnees));
  const int milieu = static_cast<int>(std::clamp(std::round(latitude / 5) * 5, -70.0, 70.0));
  std::string latitudes;
  for (int i = milieu + 10; i >= milieu - 10; i -= 5) {
    latitudes += (latitudes.empty() ? "" : ", ") + std::to_string(std::abs(i)) + (i < 0 ? " S" : " N");
  }
  f.Text1[2].texte = latitudes;
  f.Text3[0].texte = std::to_string(std::abs(milieu)) + (milieu < 0 ? " S" : " N");
  f.Text3[1].texte = "60";
}

PagesFaites ViergeVoulue(Bureau &bureau) {
  constexpr double kMillesMin = 5;
  constexpr double kMillesMax = 1200;
  constexpr double kParallele = 89; // degrees, that a sheet reaches
  constexpr double kMinutes = 60;
  FenetrePapier &f = bureau.fenetrePapier;
  constexpr double kAucune = 90; // which no blank sheet is of
  const double latitude = LitLatitudeTapee(f.Text3[0].texte).value_or(kAucune);
  const bool bonne = std::fabs(latitude) <= kLatitudeVierge;
  MarqueChamp(f.Text3[0], bonne, f.TexteHors.legende);
  const double place = 2 * kMinutes * (kParallele - std::min(std::fabs(latitude), kLatitudeVierge));
  const std::optional<double> milles =
      LitChampBorne(f.Text3[1], kMillesMin, std::min(kMillesMax, place), f.TexteHors.legende);
  PagesFaites faites;
  if (bonne && milles) {
    faites.pages.push_back(PageVierge(latitude, *milles, FormatVoulu(f),
                                      bureau.motsPapier.TexteVierge.legende + TexteLatitude(latitude),
                                      PiedVierge(bureau), MotsDuCanevas(bureau)));
  }
  return faites;
}

/// Makes the pages of the tab that is looked at, if they can be made at once.
void RefaitPages(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  PagesFaites faites;
  switch (OngletVu(f)) {
  case OngletPapier::Fiche:
    faites = FichesVoulues(bureau, f.Option1[1].choisi, f.Check2.valeur == 1, FormatVoulu(f));
    f.Label3.legende = faites.dit;
    break;
  case OngletPapier::Jour:
    if (bureau.point.visees.empty()) {
      PreparePoint(bureau);
    }
    SuitJourMeteo(bureau, DateDuJour(bureau));
    faites = JourVoulu(bureau, FormatVoulu(f));
    f.Label5.legende = faites.dit;
    break;
  case OngletPapier::Vierge:
    faites = ViergeVoulue(bureau);
    break;
  case OngletPapier::Almanach:
  default:
    return;
  }
  for (Feuillet &page : faites.pages) {
    PoseVirgule(page, VirguleDesPages(bureau));
  }
  PagesOuvertes &vues = PagesVues(bureau);
  vues.pour = CleDesPages(bureau, OngletVu(f));
  vues.rang = std::min(vues.rang, faites.pages.empty() ? 0 : faites.pages.size() - 1);
  vues.pages = std::make_shared<const Feuillets>(std::move(faites.pages));
}

/// Pages whose sight, fix, fields or language have changed are made anew; an almanac where that changes none of its
/// days and latitudes: these wait for "Calculer".
void SuitCeQuiChange(Bureau &bureau) {
  PapierOuvert &p = bureau.papier;
  const OngletPapier onglet = OngletVu(bureau.fenetrePapier);
  const std::string cle = CleDesPages(bureau, onglet);
  if (onglet != OngletPapier::Almanach) {
    if (PagesVues(bureau).pour != cle) {
      RefaitPages(bureau);
      p.aMontrer = true;
    }
  } else if (p.almanach && p.demandee != cle && p.jours == CleDesChiffres(bureau.fenetrePapier)) {
    DemandeAlmanachPapier(bureau);
  }
}

void MontreAlmanach(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  const PapierOuvert &p = bureau.papier;
  const PagesOuvertes &pages = p.onglets.front();
  f.Command1[1].actif = p.enCalcul;
  f.Avance.visible = p.enCalcul;
  f.Avance.maximum = kMilliemes;
  f.Avance.valeur = p.millieme->load();
  f.Label2.legende = p.enCalcul                    ? f.TexteCalcul.legende
                     : !pages.pages || !p.almanach ? f.TexteAttend.legende
                     : !SontBonnes(bureau, OngletPapier::Almanach)
                         ? f.TexteAutres.legende
                         : std::to_string(p.almanach->jours.size()) + f.TexteJours.legende + ", " +
                               std::to_string(pages.pages->size()) + f.TextePages.legende;
}

void MontrePage(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  const PagesOuvertes &vues = PagesVues(bureau);
  const std::size_t nombre = SontBonnes(bureau, OngletVu(f)) ? vues.pages->size() : 0;
  f.Feuille.feuillet = nombre == 0 ? nullptr : std::shared_ptr<const Feuillet>(vues.pages, &(*vues.pages)[vues.rang]);
  f.LabPage.legende = nombre == 0 ? f.TexteSansPage.legende
                                  : f.TextePage.legende + std::to_string(vues.rang + 1) + " / " +
                                        std::to_string(nombre) + "   " + (*vues.pages)[vues.rang].titre;
  f.Page[0].actif = vues.rang > 0;
  f.Page[1].actif = vues.rang + 1 < nombre;
  f.Command2[0].actif = nombre > 0;
  f.Command2[1].actif = nombre > 0;
  f.Command2[2].actif = OngletVu(f) == OngletPapier::Almanach && nombre > 0;
}

/// The words on the first field that can't be used; of the latitudes they name the one.
std::string FauteVue(FenetrePapier &f) {
  const bool latitudes =
      OngletVu(f) == OngletPapier::Almanach && f.Text1[0].alerte.empty() && f.Text1[1].alerte.empty();
  return latitudes ? f.Text1[2].alerte : PremiereFaute(Liste(f));
}

void Montre(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  PoseListe(f.Onglets1, f.MotOnglet);
  PoseListe(f.Combo1, f.MotFormat);
  PoseListe(f.Combo2, f.MotOrdre);
  const std::array<Controle *, kOngletsPapier> pages = {&f.PageAlmanach, &f.PageFiche, &f.PageJour, &f.PageVierge};
  for (std::size_t i = 0; i < pages.size(); ++i) {
    pages.at(i)->visible = std::cmp_equal(i, f.Onglets1.rang);
  }
  f.cadre.titre = f.Onglets1.texte;
  MontreAlmanach(bureau);
  MontrePage(bureau);
  if (std::string faute = FauteVue(f); !faute.empty()) {
    f.LabAvis.legende = std::move(faute);
  }
}

std::string NomDesPages(const Bureau &bureau) {
  const FenetrePapier &f = bureau.fenetrePapier;
  return f.MotFichier.at(static_cast<std::size_t>(OngletVu(f))).legende;
}

/// Writes bytes into a file, and says in the window what became of it.
void EcritEtDit(Bureau &bureau, const fs::path &chemin, const std::string &octets) {
  FenetrePapier &f = bureau.fenetrePapier;
  const bool ecrit = !octets.empty() && Passe([&] { EcritFichier(chemin, octets, bureau.dossiers.utilisateur); });
  f.LabAvis.legende = (ecrit ? f.TexteEcrit : f.TexteEchec).legende + chemin.string();
  if (!ecrit) {
    bureau.ports.boite({.texte = f.LabAvis.legende, .icone = Icone::Erreur, .fenetre = kFenetrePapier});
  }
}

void EcritPages(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  PapierOuvert &p = bureau.papier;
  const std::shared_ptr<const Feuillets> pages = PagesVues(bureau).pages;
  const fs::path chemin =
      ChoisitSortie(bureau, f.Command2[0].legende, NomDesPages(bureau) + ".pdf", "*.pdf", kFenetrePapier);
  if (chemin.empty() || !pages || p.enEcriture) {
    return;
  }
  p.enEcriture = true;
  p.aMontrer = true;
  f.LabAvis.legende = f.TexteEcriture.legende;
  bureau.ports.travaille([pages, chemin, pdf = bureau.ports.pdf, &bureau]() -> std::function<void()> {
    std::string octets = pdf(*pages, {});
    return [octets = std::move(octets), chemin, &bureau] {
      bureau.papier.enEcriture = false;
      bureau.papier.aMontrer = true;
      EcritEtDit(bureau, chemin, octets);
    };
  });
}

void ImprimePages(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  const auto pages = PagesVues(bureau).pages;
  if (!pages) {
    return;
  }
  const std::optional<std::size_t> imprimees = bureau.ports.imprimeFeuillets(*pages);
  f.LabAvis.legende = !imprimees        ? f.TexteImpression.legende
                      : *imprimees == 0 ? ""
                                        : f.TexteImprimees.legende + std::to_string(*imprimees);
}

void EcritCsv(Bureau &bureau) {
  const std::shared_ptr<const Almanach> almanach = bureau.papier.almanach;
  const fs::path chemin = ChoisitSortie(bureau, bureau.fenetrePapier.Command2[2].legende,
                                        bureau.fenetrePapier.MotFichier[0].legende + ".csv", "*.csv", kFenetrePapier);
  if (!chemin.empty() && almanach) {
    EcritEtDit(bureau, chemin, EcritAlmanachCsv(*almanach));
  }
}

} // namespace

void OuvrePapier_Click(Bureau &bureau, int /*indice*/) {
  FenetrePapier &f = bureau.fenetrePapier;
  if (f.Text1[0].texte.empty()) {
    RemplitChamps(bureau);
  }
  f.LabAvis.legende.clear();
  f.cadre.visible = true;
  bureau.premierPlan = kFenetrePapier;
  bureau.focus = OngletVu(f) == OngletPapier::Almanach ? &f.Text1[0] : &f.Onglets1;
  RefaitPages(bureau);
  bureau.papier.aMontrer = true;
}

void AccordePapier(Bureau &bureau) {
  FenetrePapier &f = bureau.fenetrePapier;
  PapierOuvert &p = bureau.papier;
  if (!f.cadre.visible) {
    return;
  }
  if (std::exchange(p.langue, bureau.FichierLangue) != bureau.FichierLangue) {
    f.LabAvis.legende.clear();
    p.aMontrer = true;
  }
  SuitCeQuiChange(bureau);
  if (std::exchange(p.aMontrer, false) || p.enCalcul) {
    Montre(bureau);
  }
}

namespace papier {

void Onglets1_Click(Bureau &bureau, int /*indice*/) {
  bureau.fenetrePapier.LabAvis.legende.clear();
  RefaitPages(bureau);
  bureau.papier.aMontrer = true;
}

void Text1_Change(Bureau &bureau, int /*indice*/) {
  bureau.fenetrePapier.LabAvis.legende.clear();
  LitDemandeAlmanach(bureau);
  bureau.papier.aMontrer = true;
}

void Text1_Valide(Bureau &bureau, int /*indice*/) { papier::Command1_Click(bureau, 0); }

void Command1_Click(Bureau &bureau, int indice) {
  FenetrePapier &f = bureau.fenetrePapier;
  f.LabAvis.legende.clear();
  if (indice == 1) {
    ArreteAlmanach(bureau);
    f.LabAvis.legende = f.TexteArrete.legende;
    return;
  }
  DemandeAlmanachPapier(bureau);
  GardeChamps(bureau);
}

void Champ_Change(Bureau &bureau, int /*indice*/) {
  bureau.fenetrePapier.LabAvis.legende.clear();
  RefaitPages(bureau);
  bureau.papier.aMontrer = true;
}

void Page_Click(Bureau &bureau, int indice) {
  PagesOuvertes &vues = PagesVues(bureau);
  if (indice == 0 && vues.rang > 0) {
    --vues.rang;
  } else if (indice == 1 && vues.pages && vues.rang + 1 < vues.pages->size()) {
    ++vues.rang;
  }
  bureau.papier.aMontrer = true;
}

void Command2_Click(Bureau &bureau, int indice) {
  FenetrePapier &f = bureau.fenetrePapier;
  GardeChamps(bureau);
  bureau.papier.aMontrer = true;
  switch (indice) {
  case 0:
    EcritPages(bureau);
    break;
  case 1:
    ImprimePages(bureau);
    break;
  case 2:
    EcritCsv(bureau);
    break;
  default:
    f.cadre.visible = false;
    bureau.premierPlan = kFenetreDonnees;
    break;
  }
}

} // namespace papier
} // namespace velmaris
