#include "shell/complements/RangeesTexte.hpp"

#include <memory>
#include <utility>

namespace velmaris {
namespace {

class Rangees : public LecteurLignes {
public:
  explicit Rangees(std::vector<RangeeTexte> rangees) : rangees_(std::move(rangees)) {}
  std::string texte(std::size_t ligne, std::size_t colonne) const override {
    return rangees_.at(ligne).textes.at(colonne);
  }
  bool coche(std::size_t ligne) const override { return rangees_.at(ligne).cochee; }
  TonLigne ton(std::size_t ligne) const override { return rangees_.at(ligne).ton; }
  const std::vector<RangeeTexte> &rangees() const { return rangees_; }

private:
  std::vector<RangeeTexte> rangees_;
};

} // namespace

void PoseRangees(Tableau &tableau, std::vector<Colonne> colonnes, std::vector<RangeeTexte> rangees) {
  const auto *avant = dynamic_cast<const Rangees *>(tableau.lecteur.get());
  if (avant != nullptr && avant->rangees() == rangees && tableau.colonnes == colonnes) {
    return;
  }
  tableau.colonnes = std::move(colonnes);
  if (tableau.lignes != rangees.size()) {
    const std::size_t nombre = rangees.size();
    PoseLignes(tableau, nombre, std::make_shared<Rangees>(std::move(rangees)));
    return;
  }
  tableau.lecteur = std::make_shared<Rangees>(std::move(rangees));
  ++tableau.version;
}

} // namespace velmaris
