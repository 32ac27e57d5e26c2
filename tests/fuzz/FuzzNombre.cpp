#include "Attend.hpp"
#include "foundations/Erreur.hpp"
#include "foundations/Fichiers.hpp"
#include "foundations/TexteNombre.hpp"
#include "foundations/ValeurDate.hpp"

#include <array>
#include <cmath>

using namespace velmaris;

namespace {

constexpr std::array kMasques = {"00", "#00", "0000", "#0.0", "#0.0#", "##0.0#", "00.00", "###.##", "0#", "#.##", ""};

void AttendVal(std::string_view texte) {
  const double valeur = Val(texte);
  Attend(std::isfinite(valeur), "Val is a figure");
  const double relue = Val(TexteGeneral(valeur));
  Attend(std::fabs(relue - valeur) <= std::fabs(valeur) * 1.0E-14, "general text reads back to 15 digits");
  for (const char *masque : kMasques) {
    const std::string sortie = Format(valeur, masque);
    Attend(Format(valeur, masque) == sortie && sortie.size() < 400, "a figure under a mask is short");
    Format(texte, masque);
    Format(texte, masque, ',');
  }
  // The text under a mask follows the masks of the fields, given by the input itself as well.
  Format(valeur, texte.substr(0, 12));
  Passe([&] { Entier16(valeur); });
}

void AttendVirgule(std::string_view texte) {
  Passe([&] {
    const double valeur = LitVirgule(texte);
    Attend(std::isfinite(valeur), "a number with a comma is a figure");
    const float simple = Simple(valeur);
    const auto relue = static_cast<float>(LitVirgule(TexteVirgule(simple)));
    Attend(std::fabs(relue - simple) <= std::fabs(simple) * 1.0E-6F, "the text with a comma reads back to 7 digits");
  });
}

void AttendDate(std::string_view texte) {
  Passe([&] {
    const ValeurDate date = LitDate(texte);
    Attend(date.mois >= 1 && date.mois <= 12 && date.jour >= 1 && date.jour <= 31 && date.annee >= 100 &&
               date.annee <= 9999,
           "a date that is read exists");
    const int jour = JourSemaine(date);
    Attend(jour >= 0 && jour <= 6, "a day of the week");
    const std::string redite = TexteDateHeure(date);
    const ValeurDate relue = LitDate(redite.substr(0, redite.find(' ')));
    Attend(relue.jour == date.jour && relue.mois == date.mois && relue.annee == date.annee,
           "a date written and read again is the same");
  });
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille) {
  const std::string_view texte = Octets(octets, taille);
  AttendVal(texte);
  AttendVirgule(texte);
  AttendDate(texte);
  const std::string utf8 = EnUtf8(texte);
  Attend(EnUtf8(utf8) == utf8 || utf8.starts_with("\xEF\xBB\xBF"), "UTF-8 stays UTF-8");
  const std::size_t n = NombreCaracteres(utf8);
  Attend(Gauche(utf8, n) == utf8 && Droite(utf8, n) == utf8, "all characters of a text are the text");
  Attend(Gauche(utf8, n / 2) + Droite(utf8, n - n / 2) == utf8, "two halves make the whole");
  return 0;
}
