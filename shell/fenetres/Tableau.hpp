#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace velmaris {

enum class Cote : std::uint8_t;

/// What a row's colour tells. Words in the row tell the same: colour alone would be lost by night.
enum class TonLigne : std::uint8_t {
  Ordinaire,
  Alerte, ///< something about it is to be looked at
  Faible  ///< it doesn't count: left out, or put away
};

/// What a table shows in its rows, read as they come into sight. Where it gives something else than before, the table's
/// `version` becomes another.
class LecteurLignes {
public:
  LecteurLignes() = default;
  virtual ~LecteurLignes() = default;
  LecteurLignes(const LecteurLignes &) = delete;
  LecteurLignes &operator=(const LecteurLignes &) = delete;
  LecteurLignes(LecteurLignes &&) = delete;
  LecteurLignes &operator=(LecteurLignes &&) = delete;

  /// The words of one cell.
  /// @param ligne    from 0, under the table's `lignes`
  /// @param colonne  from 0, the boxes to tick not counted
  virtual std::string texte(std::size_t ligne, std::size_t colonne) const = 0;
  /// Whether a row's box is ticked, where rows have one.
  virtual bool coche(std::size_t /*ligne*/) const { return false; }
  /// What the colour of a row tells.
  virtual TonLigne ton(std::size_t /*ligne*/) const { return TonLigne::Ordinaire; }
};

/// One column of a table.
struct Colonne {
  std::string legende;
  double largeur = 0.0; ///< 1/1440 inch; the last column takes what is left
  Cote cote{};
  bool operator==(const Colonne &) const = default;
};

/// No row.
inline constexpr int kSansLigne = -1;

/// The rows of a long list: which there are, and which of them the user is at.
struct Tableau {
  std::vector<Colonne> colonnes;
  bool coches = false;                          ///< a box to tick stands at the head of each row
  std::size_t lignes = 0;                       ///< their number
  std::shared_ptr<const LecteurLignes> lecteur; ///< none where there are no rows
  std::uint64_t version = 0;                    ///< another one as soon as `lecteur` gives something else
  std::vector<std::size_t> choisies;            ///< rows, in ascending order
  int courante = kSansLigne;                    ///< row that the keyboard is at
  int premiere = 0;                             ///< topmost row in sight
  bool operator==(const Tableau &) const = default;
};

/// Gives a table other rows: none is chosen any more, and the first is in sight.
/// @param lignes   their number
/// @param lecteur  what they show
void PoseLignes(Tableau &tableau, std::size_t lignes, std::shared_ptr<const LecteurLignes> lecteur);

} // namespace velmaris
