#include "shell/papier/CalculAlmanach.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/papier/PagesAlmanach.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Saisies.hpp"
#include "shell/papier/ClesPapier.hpp"
#include "shell/papier/MotsDesPages.hpp"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>
#include <vector>

namespace velmaris {
namespace {

constexpr int kMilliemes = 1000;
constexpr double kPartChiffres = 0.8; ///< of the work that the figures are, the pages being the rest

/// Latitudes that were typed one after the other.
struct LatitudesLues {
  std::vector<double> latitudes;
  std::string fautive; ///< the first that is none, as typed
};

/// One latitude: its side is told by a letter or a sign, or it is the equator.
void AjouteLatitude(LatitudesLues &lues, std::string_view mot) {
  const std::string_view nu = SansBlancs(mot);
  if (nu.empty() || !lues.fautive.empty()) {
    return;
  }
  const std::optional<double> latitude = LitLatitudeTapee(nu);
  const bool cotee = nu.find_first_of("NSns+-") != std::string_view::npos;
  if (latitude && (cotee || *latitude == 0)) {
    lues.latitudes.push_back(*latitude);
  } else {
    lues.fautive = nu;
  }
}

/// Where a latitude ends: behind its letter, or at what parts it from the next one. A comma between two figures is a
/// decimal one.
std::size_t FinDeLatitude(std::string_view texte) {
  const auto chiffre = [&](std::size_t i) { return i < texte.size() && texte[i] >= '0' && texte[i] <= '9'; };
  for (std::size_t i = 0; i < texte.size(); ++i) {
    const bool virgule = texte[i] == ',' && !(i > 0 && chiffre(i - 1) && chiffre(i + 1));
    if (virgule || texte[i] == ';') {
      return i;
    }
    if (std::string_view("NSns").find(texte[i]) != std::string_view::npos) {
      return i + 1;
    }
  }
  return texte.size();
}

LatitudesLues LitLatitudes(std::string_view texte) {
  LatitudesLues lues;
  while (!texte.empty()) {
    const std::size_t fin = FinDeLatitude(texte);
    AjouteLatitude(lues, texte.substr(0, fin));
    texte.remove_prefix(fin);
    if (texte.starts_with(',') || texte.starts_with(';')) {
      texte.remove_prefix(1);
    }
  }
  return lues;
}

/// What a work brings.
struct AlmanachFait {
  std::shared_ptr<const Almanach> almanach;
  std::shared_ptr<const Feuillets> pages;
};

/// @return nothing when it was stopped
std::optional<AlmanachFait> Fait(const DemandeAlmanach &demande, const Etoiles &etoiles, const MotsAlmanach &mots,
                                 const ReglagesPages &reglages, const std::stop_token &arret,
                                 std::atomic<int> &millieme) {
  const auto dit = [&millieme](double debut, double part) {
    return [&millieme, debut, part](double fait) {
      millieme = static_cast<int>(kMilliemes * (debut + part * std::clamp(fait, 0.0, 1.0)));
    };
  };
  std::optional<Almanach> almanach = CalculeAlmanach(demande, etoiles, arret, dit(0, kPartChiffres));
  if (!almanach) {
    return std::nullopt;
  }
  const Avancement avancement{arret, dit(kPartChiffres, 1 - kPartChiffres)};
  std::optional<Feuillets> pages = PagesAlmanach(*almanach, mots, reglages, avancement);
  if (!pages) {
    return std::nullopt;
  }
  return AlmanachFait{std::make_shared<const Almanach>(std::move(*almanach)),
                      std::make_shared<const Feuillets>(std::move(*pages))};
}

/// The days are told one by one.
void MarqueDates(FenetrePapier &f, const DemandeAlmanach &demande) {
  for (const bool fin : {false, true}) {
    DemandeAlmanach seule;
    seule.debut = seule.fin = fin ? demande.fin : demande.debut;
    if (DefautDe(seule)) {
      f.Text1.at(fin ? 1 : 0).alerte = f.MotDefaut.at(static_cast<std::size_t>(DefautAlmanach::Date)).legende;
    }
  }
}

void MarqueDefaut(FenetrePapier &f, DefautAlmanach defaut) {
  const bool latitude = defaut == DefautAlmanach::Latitude || defaut == DefautAlmanach::TropDeLatitudes;
  Controle &champ = latitude ? f.Text1[2] : f.Text1[1];
  champ.alerte = f.MotDefaut.at(static_cast<std::size_t>(defaut)).legende;
}

} // namespace

FormatPapier FormatVoulu(const FenetrePapier &fenetre) {
  return fenetre.Combo1.rang == 1 ? FormatPapier::Lettre : FormatPapier::A4;
}

std::optional<DemandeAlmanach> LitDemandeAlmanach(Bureau &bureau) {
  constexpr std::string_view kMidi = "12:00";
  FenetrePapier &f = bureau.fenetrePapier;
  const auto debut = LitMomentTape(f.Text1[0].texte, kMidi);
  const auto fin = LitMomentTape(f.Text1[1].texte, kMidi);
  const LatitudesLues lues = LitLatitudes(f.Text1[2].texte);
  MarqueChamp(f.Text1[0], debut.has_value(), f.TexteHors.legende);
  MarqueChamp(f.Text1[1], fin.has_value(), f.TexteHors.legende);
  f.Text1[2].alerte.clear();
  if (!lues.fautive.empty()) {
    f.Text1[2].alerte =
        lues.fautive + " : " + f.MotDefaut.at(static_cast<std::size_t>(DefautAlmanach::Latitude)).legende;
  }
  if (!debut || !fin || !lues.fautive.empty()) {
    return std::nullopt;
  }
  DemandeAlmanach demande;
  demande.debut = CivileDe(*debut);
  demande.fin = CivileDe(*fin);
  demande.latitudes = lues.latitudes;
  demande.dut1 = bureau.verification.reglages.dut1;
  demande.ordre = f.Combo2.rang == 1 ? OrdreEtoiles::Sha : OrdreEtoiles::Nom;
  if (const auto defaut = DefautDe(demande)) {
    *defaut == DefautAlmanach::Date ? MarqueDates(f, demande) : MarqueDefaut(f, *defaut);
    return std::nullopt;
  }
  return demande;
}

void DemandeAlmanachPapier(Bureau &bureau) {
  PapierOuvert &p = bureau.papier;
  const FenetrePapier &f = bureau.fenetrePapier;
  const std::optional<DemandeAlmanach> demande = LitDemandeAlmanach(bureau);
  p.aMontrer = true;
  if (!demande) {
    return;
  }
  const ReglagesPages reglages{.format = FormatVoulu(f),
                               .jours = f.Check1[0].valeur == 1,
                               .tables = f.Check1[1].valeur == 1,
                               .increments = f.Check1[2].valeur == 1,
                               .fait = JourPresent(bureau)};
  p.demandee = CleDesPages(bureau, OngletPapier::Almanach);
  p.jours = CleDesChiffres(f);
  p.arret.request_stop();
  p.arret = std::stop_source();
  p.millieme = std::make_shared<std::atomic<int>>(0);
  p.enCalcul = true;
  bureau.ports.travaille([arret = p.arret.get_token(), millieme = p.millieme, demande = *demande, reglages,
                          mots = MotsDeLAlmanach(bureau), pour = p.demandee, &etoiles = bureau.etoiles,
                          &bureau]() -> std::function<void()> {
    std::optional<AlmanachFait> fait;
    try {
      fait = Fait(demande, etoiles, mots, reglages, arret, *millieme);
    } catch (const Refus &) {
      fait.reset(); // its demand has been looked at before
    }
    return [fait = std::move(fait), arret, pour, &bureau] {
      PapierOuvert &ouvert = bureau.papier;
      if (arret.stop_requested()) {
        return; // another one has been asked for, or none
      }
      ouvert.enCalcul = false;
      ouvert.aMontrer = true;
      if (fait) {
        ouvert.almanach = fait->almanach;
        ouvert.onglets[static_cast<std::size_t>(OngletPapier::Almanach)] = {fait->pages, 0, pour};
      }
    };
  });
}

void ArreteAlmanach(Bureau &bureau) {
  PapierOuvert &p = bureau.papier;
  p.arret.request_stop();
  p.enCalcul = false;
  p.aMontrer = true;
}

} // namespace velmaris
