#include "shell/registre/FichiersRegistre.hpp"

#include "complements/controle/Controle.hpp"
#include "complements/registre/ReduitCopie.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "lines/FichierLoP.hpp"
#include "shell/bureau/Avis.hpp"
#include "shell/ecran/ChoixSortie.hpp"
#include "shell/registre/LectureRegistre.hpp"
#include "shell/registre/Registre.hpp"
#include "shell/visee/Journal.hpp"

#include <string>
#include <system_error>

namespace velmaris {
namespace {

namespace fs = std::filesystem;

/// Name of a body as the journal has it: by the captions of the moment, and the lists.
std::string NomDe(const Bureau &bureau, const Observation &o) {
  const Donnees &d = bureau.donnees;
  switch (o.corps) {
  case Corps::Planetes:
    return d.Combo7.liste.at(static_cast<std::size_t>(o.planete));
  case Corps::Etoiles:
    return d.Combo6.liste.at(static_cast<std::size_t>(o.etoile));
  case Corps::Soleil:
  case Corps::Lune:
  case Corps::Aucun:
  default:
    return d.Option7.at(static_cast<std::size_t>(o.corps)).legende;
  }
}

/// A sight's file as a row of the journal.
/// @return nothing where it makes no sight
std::optional<Rangee> RangeeDuFichier(const Bureau &bureau, const fs::path &chemin) {
  Rangee r;
  Observation &o = r.observation;
  if (!Passe([&] { ChargeLoP(chemin, o); })) {
    return std::nullopt;
  }
  const std::optional<ResultatDit> dit = ReduitCopie(o, bureau.etoiles, bureau.messages);
  if (!dit || !Passe([&] { r.astre = NomDe(bureau, o); })) {
    return std::nullopt;
  }
  const FicheControle controle = ControleVisee(o, *dit, bureau.etoiles, bureau.verification.reglages);
  r.utc = InstantPresent(bureau);
  r.Ho = dit->Ho;
  r.Hc = dit->Hc;
  r.intercept = static_cast<float>(dit->intercept);
  r.azimut = static_cast<float>(dit->azimut);
  r.identite = IdentiteNeuve();
  if (controle.actuel) {
    r.actuel = controle.actuel->intercept;
    r.ecart = controle.ecart;
  }
  return r;
}

/// Writes, and tells what can't be written.
template <class Ecriture> bool Ecrit(Bureau &bureau, const fs::path &chemin, Ecriture &&ecriture) {
  try {
    ecriture();
    return true;
  } catch (const Erreur &erreur) {
    const Donnees &d = bureau.donnees;
    bureau.ports.boite(
        {.texte = MotsErreur(d, erreur.numero) + "\n\n" + d.TexteNonEcrit.legende + "\n" + chemin.string(),
         .icone = Icone::Erreur});
    return false;
  }
}

/// A name that no file of the folder has: the one proposed, or that with " (2)", " (3)"... before its extension.
fs::path NomLibre(const fs::path &voulu) {
  std::error_code refus;
  fs::path nom = voulu;
  for (int n = 2; fs::exists(nom, refus); ++n) {
    nom = voulu.parent_path() / (voulu.stem().string() + " (" + std::to_string(n) + ")" + voulu.extension().string());
  }
  return nom;
}

void AviseEcrites(Bureau &bureau, std::size_t nombre) {
  Avise(bureau, bureau.registre.TexteExportees.legende + std::to_string(nombre));
}

} // namespace

void EntreFichiers(Bureau &bureau, const std::vector<fs::path> &chemins) {
  std::string refuses;
  int entrees = 0;
  for (const fs::path &chemin : chemins) {
    if (const std::optional<Rangee> rangee = RangeeDuFichier(bureau, chemin)) {
      JournaliseLigne(bureau, EcritRangee(*rangee));
      ++entrees;
    } else {
      refuses += "\n" + chemin.string();
    }
  }
  if (entrees > 0) {
    Avise(bureau, bureau.registre.TexteEntrees.legende + std::to_string(entrees));
    DemandeRegistre(bureau);
  }
  if (!refuses.empty()) {
    bureau.ports.boite({.texte = bureau.registre.TexteNonEntrees.legende + refuses,
                        .icone = Icone::Attention,
                        .fenetre = kFenetreRegistre});
  }
}

namespace registre {

void Command4_Click(Bureau &bureau, int /*indice*/) {
  const std::vector<std::size_t> rangs = RangsVises(bureau);
  const std::shared_ptr<const RegistreLu> lu = bureau.registreOuvert.lu; // the log may be read again meanwhile
  const fs::path chemin = rangs.empty() ? fs::path()
                                        : ChoisitSortie(bureau, bureau.registre.TexteCsv.legende, "registre.csv",
                                                        "*.csv", kFenetreRegistre);
  if (!chemin.empty() &&
      Ecrit(bureau, chemin, [&] { EcritFichier(chemin, EnCsv(*lu, rangs), bureau.dossiers.utilisateur); })) {
    AviseEcrites(bureau, rangs.size());
  }
}

void Command5_Click(Bureau &bureau, int /*indice*/) {
  std::vector<Observation> visees;
  for (const std::size_t rang : RangsVises(bureau)) {
    std::optional<Rangee> rangee = RangeeDe(*bureau.registreOuvert.lu, rang);
    if (rangee && ChoisitAstre(*rangee, bureau.etoiles)) {
      visees.push_back(rangee->observation);
    }
  }
  if (visees.empty()) {
    Avise(bureau, bureau.registre.TexteSansChoix.legende);
    return;
  }
  const Controle &titre = bureau.registre.TexteLoP;
  const std::string nom = NomProposeLoP(visees.front());
  const fs::path chemin = visees.size() == 1 ? ChoisitSortie(bureau, titre.legende, nom, "*LoP", kFenetreRegistre)
                                             : ChoisitSansTitre(bureau, titre.legende, nom, "*LoP", kFenetreRegistre);
  std::size_t ecrites = 0;
  for (const Observation &visee : chemin.empty() ? std::vector<Observation>() : visees) {
    const fs::path ici = visees.size() == 1 ? chemin : NomLibre(chemin.parent_path() / NomProposeLoP(visee));
    if (!Ecrit(bureau, ici, [&] { SauveLoP(ici, visee, bureau.dossiers.utilisateur); })) {
      break;
    }
    ++ecrites;
  }
  if (ecrites > 0) {
    AviseEcrites(bureau, ecrites);
  }
}

} // namespace registre
} // namespace velmaris
