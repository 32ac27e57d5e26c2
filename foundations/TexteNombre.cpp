#include "foundations/TexteNombre.hpp"

#include "foundations/Erreur.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>
#include <utility>

namespace velmaris {
namespace {

constexpr int kChiffresDouble = 15;
constexpr int kChiffresSimple = 7;

bool Chiffre(char c) { return c >= '0' && c <= '9'; }
bool Blanc(char c) { return c == ' ' || c == '\t'; }

std::size_t SauteChiffres(std::string_view t, std::size_t i) {
  while (i < t.size() && Chiffre(t[i])) {
    ++i;
  }
  return i;
}

/// Length of the number that opens the text (no leading blanks), 0 when there is none.
std::size_t LongueurNombre(std::string_view t, char point) {
  std::size_t i = (!t.empty() && (t[0] == '+' || t[0] == '-')) ? 1 : 0;
  const std::size_t entiers = i;
  i = SauteChiffres(t, i);
  std::size_t chiffres = i - entiers;
  if (i < t.size() && t[i] == point) {
    const std::size_t fin = SauteChiffres(t, i + 1);
    chiffres += fin - (i + 1);
    i = fin;
  }
  if (chiffres == 0) {
    return 0;
  }
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) {
      ++j;
    }
    if (j < t.size() && Chiffre(t[j])) {
      i = SauteChiffres(t, j);
    }
  }
  return i;
}

/// Whether a well-formed number that left the range of 64 bits did so upwards: the sign of its power of ten.
bool TropGrand(std::string_view nombre) {
  const std::size_t e = std::min(nombre.find_first_of("eE"), nombre.size());
  const std::string_view mantisse = nombre.substr(0, e);
  const auto point = static_cast<double>(std::min(mantisse.find('.'), mantisse.size()));
  const auto premier = static_cast<double>(mantisse.find_first_of("123456789"));
  double exposant = 0.0;
  for (std::size_t i = e; i < nombre.size(); ++i) {
    exposant = Chiffre(nombre[i]) ? exposant * 10.0 + (nombre[i] - '0') : exposant;
  }
  const bool negatif = e + 1 < nombre.size() && nombre[e + 1] == '-';
  return point - premier + (negatif ? -exposant : exposant) > 0.0;
}

/// The value of a well-formed number with "." as its point; nothing when it is above the range of 64 bits.
std::optional<double> Valeur(std::string_view nombre) {
  const bool negatif = nombre.front() == '-';
  if (negatif || nombre.front() == '+') {
    nombre.remove_prefix(1);
  }
  double valeur = 0.0;
  const auto [fin, code] = std::from_chars(nombre.data(), nombre.data() + nombre.size(), valeur);
  if (code == std::errc::result_out_of_range) {
    if (TropGrand(nombre)) {
      return std::nullopt;
    }
    valeur = 0.0;
  }
  return negatif ? -valeur : valeur;
}

/// A text that is wholly a number: the number with "." as its point, else nothing.
std::optional<std::string> NombreEntier(std::string_view texte, char signeDecimal) {
  const std::string_view nombre = SansBlancs(texte);
  if (nombre.empty() || LongueurNombre(nombre, signeDecimal) != nombre.size()) {
    return std::nullopt;
  }
  std::string resultat(nombre);
  std::replace(resultat.begin(), resultat.end(), signeDecimal, '.');
  return resultat;
}

/// A text that is wholly a number, as that number.
double Convertit(std::string_view texte, char signeDecimal) {
  const auto nombre = NombreEntier(texte, signeDecimal);
  if (!nombre) {
    throw Erreur(13);
  }
  const auto valeur = Valeur(*nombre);
  if (!valeur) {
    throw Erreur(6);
  }
  return *valeur;
}

/// Decimal digits of a positive value: its 15 significant digits and the place of the point among them.
struct Decimales {
  std::string chiffres;
  int point = 0; ///< digits before the point; may be negative or past the digits
};

Decimales EnDecimales(double valeur) {
  std::array<char, 40> tampon{};
  const auto resultat = std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur,
                                      std::chars_format::scientific, kChiffresDouble - 1);
  const std::string_view texte(tampon.data(), static_cast<std::size_t>(resultat.ptr - tampon.data()));
  const std::size_t e = texte.find('e');
  int exposant = 0;
  const std::size_t debut = texte[e + 1] == '+' ? e + 2 : e + 1;
  std::from_chars(texte.data() + debut, texte.data() + texte.size(), exposant);
  Decimales d;
  d.chiffres.assign(1, texte[0]);
  d.chiffres.append(texte.substr(2, e - 2));
  d.point = exposant + 1;
  return d;
}

/// Rounds half away from zero to a number of places after the point.
void Arrondit(Decimales &d, int places) {
  const int garde = d.point + places;
  if (std::cmp_greater_equal(garde, d.chiffres.size())) {
    return;
  }
  if (garde < 0) {
    d = {"0", 1};
    return;
  }
  const bool monte = d.chiffres[static_cast<std::size_t>(garde)] >= '5';
  d.chiffres.resize(static_cast<std::size_t>(garde));
  if (!monte) {
    return;
  }
  int i = garde - 1;
  while (i >= 0 && d.chiffres[static_cast<std::size_t>(i)] == '9') {
    d.chiffres[static_cast<std::size_t>(i--)] = '0';
  }
  if (i >= 0) {
    ++d.chiffres[static_cast<std::size_t>(i)];
  } else {
    d.chiffres.insert(0, 1, '1');
    ++d.point;
  }
}

/// What a mask asks for.
struct Masque {
  std::string_view avant, apres; ///< literal characters around the places
  int entiersMin = 0;            ///< digits demanded before the point
  int decimalesMin = 0;          ///< digits demanded after it
  int decimalesMax = 0;          ///< places after it
  bool point = false;
};

Masque LitMasque(std::string_view texte) {
  Masque m;
  const std::size_t debut = std::min(texte.find_first_of("#0."), texte.size());
  const std::size_t dernier = texte.find_last_of("#0.");
  const std::size_t fin = dernier == std::string_view::npos ? texte.size() : dernier + 1;
  m.avant = texte.substr(0, debut);
  m.apres = texte.substr(fin);
  const std::string_view places = texte.substr(debut, fin - debut);
  const std::size_t point = places.find('.');
  m.point = point != std::string_view::npos;
  const std::string_view entiers = places.substr(0, point);
  const std::size_t zero = entiers.find('0');
  m.entiersMin = zero == std::string_view::npos ? 0 : static_cast<int>(entiers.size() - zero);
  if (m.point) {
    const std::string_view decimales = places.substr(point + 1);
    const std::size_t dernierZero = decimales.rfind('0');
    m.decimalesMax = static_cast<int>(decimales.size());
    m.decimalesMin = dernierZero == std::string_view::npos ? 0 : static_cast<int>(dernierZero) + 1;
  }
  return m;
}

std::string Assemble(const Decimales &d, const Masque &m) {
  const auto chiffre = [&](int i) {
    return i >= 0 && std::cmp_less(i, d.chiffres.size()) ? d.chiffres[static_cast<std::size_t>(i)] : '0';
  };
  std::string entiers;
  for (int i = 0; i < d.point; ++i) {
    entiers += chiffre(i);
  }
  entiers.erase(0, std::min(entiers.find_first_not_of('0'), entiers.size()));
  if (std::cmp_less(entiers.size(), m.entiersMin)) {
    entiers.insert(0, static_cast<std::size_t>(m.entiersMin) - entiers.size(), '0');
  }
  std::string decimales;
  for (int i = 0; i < m.decimalesMax; ++i) {
    decimales += chiffre(d.point + i);
  }
  while (std::cmp_greater(decimales.size(), m.decimalesMin) && decimales.back() == '0') {
    decimales.pop_back();
  }
  return m.point ? entiers + '.' + decimales : entiers;
}

template <class Nombre> std::string General(Nombre valeur, int chiffres) {
  if (valeur == Nombre(0)) {
    return "0";
  }
  std::array<char, 48> tampon{};
  const auto resultat =
      std::to_chars(tampon.data(), tampon.data() + tampon.size(), valeur, std::chars_format::general, chiffres);
  std::string texte(tampon.data(), resultat.ptr);
  std::replace(texte.begin(), texte.end(), 'e', 'E');
  return texte;
}

/// Position in bytes of the n-th character of a UTF-8 text, or its length.
std::size_t DebutCaractere(std::string_view texte, std::size_t n) {
  std::size_t i = 0;
  for (; i < texte.size(); ++i) {
    const bool suite = (static_cast<unsigned char>(texte[i]) & 0xC0U) == 0x80U;
    if (!suite && n-- == 0) {
      break;
    }
  }
  return i;
}

} // namespace

double Val(std::string_view texte) {
  texte.remove_prefix(std::min(texte.find_first_not_of(" \t"), texte.size()));
  const std::size_t longueur = LongueurNombre(texte, '.');
  if (longueur == 0) {
    return 0.0;
  }
  const double limite = std::numeric_limits<double>::max();
  return Valeur(texte.substr(0, longueur)).value_or(texte.front() == '-' ? -limite : limite);
}

double Int(double x) { return std::floor(x); }

double Fix(double x) { return std::trunc(x); }

std::int16_t Entier16(double x) {
  const double arrondi = std::nearbyint(x);
  if (!(arrondi >= -32768.0 && arrondi <= 32767.0)) {
    throw Erreur(6);
  }
  return static_cast<std::int16_t>(arrondi);
}

std::string Format(double valeur, std::string_view masque) {
  if (!std::isfinite(valeur)) {
    return TexteGeneral(valeur);
  }
  const Masque m = LitMasque(masque);
  Decimales d = EnDecimales(std::fabs(valeur));
  Arrondit(d, m.decimalesMax);
  const bool nul = d.chiffres.find_first_not_of('0') == std::string::npos;
  std::string texte = (valeur < 0.0 && !nul) ? "-" : "";
  texte.append(m.avant);
  texte += Assemble(d, m);
  texte.append(m.apres);
  return texte;
}

std::string Format(std::string_view texte, std::string_view masque, char signeDecimal) {
  const auto nombre = NombreEntier(texte, signeDecimal);
  const auto valeur = nombre ? Valeur(*nombre) : std::nullopt;
  if (!valeur) {
    return std::string(texte);
  }
  std::string resultat = Format(*valeur, masque);
  std::replace(resultat.begin(), resultat.end(), '.', signeDecimal);
  return resultat;
}

std::string TexteGeneral(double valeur) { return General(valeur, kChiffresDouble); }

std::string TexteGeneral(float valeur) { return General(valeur, kChiffresSimple); }

std::string TexteVirgule(float valeur) {
  std::string texte = TexteGeneral(valeur);
  std::replace(texte.begin(), texte.end(), '.', ',');
  return texte;
}

double LitVirgule(std::string_view texte) { return Convertit(texte, ','); }

double LitNombre(std::string_view texte) { return Convertit(texte, '.'); }

std::string AvecPoint(std::string_view texte) {
  std::string avec(texte);
  std::replace(avec.begin(), avec.end(), ',', '.');
  return avec;
}

std::size_t NombreCaracteres(std::string_view texte) {
  return static_cast<std::size_t>(std::count_if(
      texte.begin(), texte.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string Gauche(std::string_view texte, std::size_t nombre) {
  return std::string(texte.substr(0, DebutCaractere(texte, nombre)));
}

std::string SansExtension(std::string_view nom) {
  constexpr std::size_t kExtension = 4;
  const std::size_t longueur = NombreCaracteres(nom);
  return Gauche(nom, longueur > kExtension ? longueur - kExtension : 0);
}

std::string Droite(std::string_view texte, std::size_t nombre) {
  const std::size_t total = NombreCaracteres(texte);
  return std::string(texte.substr(DebutCaractere(texte, total > nombre ? total - nombre : 0)));
}

std::string EnCapitales(std::string_view texte) {
  std::string capitales(texte);
  for (char &c : capitales) {
    c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  }
  return capitales;
}

std::string_view SansBlancs(std::string_view texte) {
  while (!texte.empty() && Blanc(texte.front())) {
    texte.remove_prefix(1);
  }
  while (!texte.empty() && Blanc(texte.back())) {
    texte.remove_suffix(1);
  }
  return texte;
}

} // namespace velmaris
