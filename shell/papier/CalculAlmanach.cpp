#include "shell/papier/CalculAlmanach.hpp"

#include "complements/ciel/Refus.hpp"
#include "complements/papier/PagesAlmanach.hpp"
#include "foundations/TexteNombre.hpp"
#include "shell/complements/Saisies.hpp"
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

/// Latitudes parted by commas or semicolons.
/// @return nothing where one is none
std::optional<std::vector<double>> LitLatitudes(std::string_view texte) {
  std::vector<double> latitudes;
  while (!texte.empty()) {
    const std::size_t fin = std::min(texte.find_first_of(",;"), texte.size());
    const std::string_view mot = SansBlancs(texte.substr(0, fin));
    texte.remove_prefix(std::min(fin + 1, texte.size()));
    if (mot.empty()) {
      continue;
    }
    const std::optional<double> latitude = LitLatitudeTapee(mot);
    if (!latitude) {
      return std::nullopt;
    }
    latitudes.push_back(*latitude);
  }
  return latitudes;
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
  const auto latitudes = LitLatitudes(f.Text1[2].texte);
  MarqueChamp(f.Text1[0], debut.has_value(), f.TexteHors.legende);
  MarqueChamp(f.Text1[1], fin.has_value(), f.TexteHors.legende);
  MarqueChamp(f.Text1[2], latitudes.has_value(), f.TexteHors.legende);
  if (!debut || !fin || !latitudes) {
    return std::nullopt;
  }
  DemandeAlmanach demande;
  demande.debut = CivileDe(*debut);
  demande.fin = CivileDe(*fin);
  demande.latitudes = *latitudes;
  demande.dut1 = bureau.verification.reglages.dut1;
  demande.ordre = f.Combo2.rang == 1 ? OrdreEtoiles::Sha : OrdreEtoiles::Nom;
  if (const auto defaut = DefautDe(demande)) {
    MarqueDefaut(f, *defaut);
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
  p.arret.request_stop();
  p.arret = std::stop_source();
  p.millieme = std::make_shared<std::atomic<int>>(0);
  p.enCalcul = true;
  bureau.ports.travaille([arret = p.arret.get_token(), millieme = p.millieme, demande = *demande, reglages,
                          mots = MotsDeLAlmanach(bureau), &etoiles = bureau.etoiles,
                          &bureau]() -> std::function<void()> {
    std::optional<AlmanachFait> fait;
    try {
      fait = Fait(demande, etoiles, mots, reglages, arret, *millieme);
    } catch (const Refus &) {
      fait.reset(); // its demand has been looked at before
    }
    return [fait = std::move(fait), arret, &bureau] {
      PapierOuvert &ouvert = bureau.papier;
      if (arret.stop_requested()) {
        return; // another one has been asked for, or none
      }
      ouvert.enCalcul = false;
      ouvert.aMontrer = true;
      if (fait) {
        ouvert.almanach = fait->almanach;
        ouvert.onglets[static_cast<std::size_t>(OngletPapier::Almanach)] = {fait->pages, 0};
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
