#include "shell/registre/LecteurRegistre.hpp"

#include "complements/controle/Controle.hpp"
#include "foundations/TexteNombre.hpp"

#include <algorithm>
#include <cmath>

namespace velmaris {
namespace {

std::string DateDe(const Observation &o) {
  const auto deux = [](const std::string &texte) { return Format(texte, "00"); };
  return deux(o.jour) + "/" + deux(o.mois) + "/" + Format(o.annee, "0000") + " " + deux(o.heure) + ":" +
         deux(o.minute) + ":" + deux(o.seconde);
}

/// The body in the language of the moment; a star's and a planet's names are those of the lists.
std::string AstreDe(const Bureau &bureau, const Rangee &r) {
  const Corps corps = r.observation.corps;
  const bool seul = corps == Corps::Soleil || corps == Corps::Lune;
  return seul ? bureau.donnees.Option7.at(static_cast<std::size_t>(corps)).legende : r.astre;
}

std::string LectureDe(const Observation &o) {
  const std::string degres = o.lectureDegres + "° " + o.lectureMinutes;
  return o.fraction == Fraction::Secondes ? degres + "' " + o.lectureFraction + "\""
                                          : degres + "." + o.lectureFraction + "'";
}

/// Today's intercept, and how far the told line lies from it.
std::string ControleDe(const Rangee &r) {
  if (!r.actuel || !r.ecart) {
    return "";
  }
  const std::string ecart = Format(*r.ecart, "0.0");
  return Format(*r.actuel, "0.0") + " ' (" + (ecart.starts_with('-') ? "" : "+") + ecart + ")" +
         (std::fabs(*r.ecart) > kManiere ? " !" : "");
}

/// The rows as they stand in the log.
class LignesRegistre : public LecteurLignes {
public:
  explicit LignesRegistre(const Bureau &bureau) : bureau_(bureau), r_(bureau.registreOuvert) {}

  std::string texte(std::size_t ligne, std::size_t colonne) const override {
    const std::optional<Rangee> rangee = RangeeDe(*r_.lu, RangMontre(r_, ligne));
    return rangee ? MotsDeRangee(bureau_, *rangee, AnnotationDe(r_, rangee->identite)).at(colonne) : "";
  }
  bool coche(std::size_t ligne) const override {
    return !r_.auPoint.empty() && std::count(r_.auPoint.begin(), r_.auPoint.end(), Identite(ligne)) > 0;
  }
  TonLigne ton(std::size_t ligne) const override {
    if (AnnotationDe(r_, Identite(ligne)).masquee) {
      return TonLigne::Faible;
    }
    const std::optional<Rangee> rangee = RangeeDe(*r_.lu, RangMontre(r_, ligne));
    return rangee && std::fabs(rangee->ecart.value_or(0)) > kManiere ? TonLigne::Alerte : TonLigne::Ordinaire;
  }

private:
  std::string Identite(std::size_t ligne) const { return IdentiteDe(*r_.lu, RangMontre(r_, ligne)); }

  const Bureau &bureau_;
  const RegistreOuvert &r_;
};

} // namespace

MotsRangee MotsDeRangee(const Bureau &bureau, const Rangee &r, const Annotation &annotation) {
  const std::string masquee = annotation.masquee ? bureau.registre.TexteMasquee.legende : "";
  return {DateDe(r.observation),
          AstreDe(bureau, r),
          LectureDe(r.observation),
          Format(r.intercept, "#0.0#") + " '",
          Format(r.azimut, "##0.0#") + "°",
          ControleDe(r),
          masquee + annotation.note};
}

std::shared_ptr<const LecteurLignes> LecteurDuRegistre(const Bureau &bureau) {
  return std::make_shared<LignesRegistre>(bureau);
}

std::size_t RangMontre(const RegistreOuvert &registre, std::size_t ligne) { return registre.montrees->at(ligne); }

Annotation AnnotationDe(const RegistreOuvert &registre, const std::string &identite) {
  const auto trouvee = registre.annotations->find(identite);
  return trouvee == registre.annotations->end() ? Annotation() : trouvee->second;
}

} // namespace velmaris
