#include "Attend.hpp"
#include "complements/registre/Annotations.hpp"
#include "complements/registre/FiltreRegistre.hpp"
#include "complements/registre/Montre.hpp"
#include "complements/registre/RegistreLu.hpp"

#include <cmath>
#include <string>
#include <vector>

using namespace velmaris;

/// Any bytes as a journal, as the file of notes and as that of the watch: what is taken from them is within bounds, and
/// what is written of it is read back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const std::string_view texte = Octets(octets, taille);
  std::vector<LigneIndexee> lignes;
  IndexeJournal(texte, lignes);
  std::size_t fin = 0;
  for (const LigneIndexee &ligne : lignes) {
    Attend(ligne.debut >= fin && ligne.debut + ligne.longueur <= taille, "rows lie in the file, one after the other");
    Attend(ligne.identite <= ligne.longueur, "an identity lies in its row");
    fin = ligne.debut + ligne.longueur;
    if (const auto rangee = LitRangee(texte.substr(ligne.debut, ligne.longueur))) {
      const auto relue = LitRangee(EcritRangee(*rangee));
      Attend(relue.has_value() && relue->observation.corps == rangee->observation.corps, "a row is read back");
    }
  }
  for (const auto &[identite, annotation] : LitAnnotations(texte)) {
    const std::string ligne = LigneAnnotation("2026-06-21T12:05:30Z", identite, annotation);
    Attend(LitAnnotations(ligne).size() == 1, "a note is read back");
  }
  std::int64_t avant = INT64_MIN;
  for (const ReleveMontre &releve : LitMontre(texte)) {
    Attend(releve.instant > avant && std::fabs(releve.erreur) <= kErreurMax && std::fabs(releve.marche) <= kMarcheMax,
           "the watch is within its limits, in the order of time");
    Attend(LitMontre(LigneMontre(releve)) == std::vector<ReleveMontre>{releve}, "and read back to the bit");
    avant = releve.instant;
  }
  LitJourCherche(texte);
  return 0;
}
