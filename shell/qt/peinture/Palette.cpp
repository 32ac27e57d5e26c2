#include "shell/qt/peinture/Palette.hpp"

#include "shell/droites/Droites.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace velmaris::qt {
namespace {

constexpr int kRougeDroite = 199;   ///< red of a line of position by night: the brightest there is
constexpr int kRougeChiffre = 195;  ///< of figures, and of texts
constexpr int kRougeCote = 190;     ///< of coasts
constexpr int kRougeNom = 185;      ///< of names
constexpr int kRougeTerre = 30;     ///< of land
constexpr double kPartGrille = 0.5; ///< of its brightness that the grid keeps by night
constexpr int kGrilleMate = 185;    ///< percent by which its strong lines are darker by dusk
constexpr double kVif = 85;         ///< red that a vivid colour has beyond that of its brightness

constexpr double kEncreNoire = 0.86; ///< lightness of black ink by dusk
constexpr double kEncreBlanche = 0.14;
constexpr double kEclatVif = 0.16; ///< more for a vivid colour
constexpr double kMate = 0.72;     ///< of its saturation that a colour keeps by dusk

QColor Rouge(double valeur) { return {static_cast<int>(std::lround(std::clamp(valeur, 0.0, 255.0))), 0, 0}; }

/// Brightness to the eye.
double Clarte(QRgb c) { return (0.30 * qRed(c) + 0.59 * qGreen(c) + 0.11 * qBlue(c)) / 255.0; }

/// How far a colour is from grey.
double Vivacite(QRgb c) {
  const auto [petit, grand] = std::minmax({qRed(c), qGreen(c), qBlue(c)});
  return (grand - petit) / 255.0;
}

/// Red of an ink on a light ground: black is the brightest; a vivid colour stays well over the ground.
double RougeSurClair(QRgb c) { return kRougeChiffre * (1 - Clarte(c)) + kVif * Vivacite(c) * Clarte(c); }

double RougeSurSombre(QRgb c) { return kRougeChiffre * Clarte(c) + kVif * Vivacite(c) * (1 - Clarte(c)); }

/// An ink by dusk: its lightness turned round, its colour muted.
QColor EncreMate(const QColor &encre) {
  float teinte = 0.0F;
  float saturation = 0.0F;
  float clarte = 0.0F;
  encre.getHslF(&teinte, &saturation, &clarte);
  const double vif = Vivacite(encre.rgb());
  const double voulue = kEncreNoire - (kEncreNoire - kEncreBlanche) * clarte + kEclatVif * vif;
  QColor mate = QColor::fromHslF(std::max(teinte, 0.0F), static_cast<float>(saturation * kMate),
                                 static_cast<float>(std::clamp(voulue, 0.0, 0.92)));
  mate.setAlpha(encre.alpha());
  return mate;
}

/// A ground that is dark by day already is only muted by dusk.
QColor FondMat(const QColor &fond) {
  if (Clarte(fond.rgb()) < 0.5) {
    return QColor::fromHslF(std::max(fond.hslHueF(), 0.0F), fond.hslSaturationF() * 0.45F, fond.lightnessF() * 0.42F);
  }
  return Vivacite(fond.rgb()) < 0.2 ? QColor(27, 31, 36) : EncreMate(fond).darker(260);
}

QColor EncreSurMat(const QColor &encre, const QColor &fond) {
  if (Clarte(fond.rgb()) >= 0.5) {
    return EncreMate(encre);
  }
  QColor mate = QColor::fromHslF(std::max(encre.hslHueF(), 0.0F), encre.hslSaturationF() * static_cast<float>(kMate),
                                 std::min(encre.lightnessF(), 0.88F));
  mate.setAlpha(encre.alpha());
  return mate;
}

double Lineaire(int composante) {
  const double c = composante / 255.0;
  return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor &c) {
  return 0.2126 * Lineaire(c.red()) + 0.7152 * Lineaire(c.green()) + 0.0722 * Lineaire(c.blue());
}

/// An ink drawn towards black or white, whichever is farther from the ground, until it can be read on it.
QColor Lisible(const QColor &encre, const QColor &fond, double contraste) {
  const int bout = Luminance(fond) > 0.18 ? 0 : 255;
  for (int part = 0; part <= 100; part += 4) {
    const auto mele = [&](int c) { return c + (bout - c) * part / 100; };
    const QColor essai(mele(encre.red()), mele(encre.green()), mele(encre.blue()));
    if (Contraste(essai, fond) >= contraste) {
      return essai;
    }
  }
  return {bout, bout, bout};
}

struct Role {
  QPalette::ColorRole role = QPalette::Window;
  QColor couleur;
};

QPalette PaletteDesRoles(std::span<const Role> roles, const QColor &eteint) {
  QPalette p;
  for (const Role &r : roles) {
    p.setColor(QPalette::All, r.role, r.couleur);
  }
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    p.setColor(QPalette::Disabled, role, eteint);
  }
  return p;
}

QPalette PaletteJour() {
  QPalette p(QColor(226, 231, 237), QColor(247, 248, 250));
  p.setColor(QPalette::WindowText, QColor(30, 36, 44));
  p.setColor(QPalette::ButtonText, QColor(30, 36, 44));
  p.setColor(QPalette::Base, Qt::white);
  p.setColor(QPalette::Text, QColor(16, 20, 26));
  p.setColor(QPalette::Highlight, QColor(31, 111, 178));
  p.setColor(QPalette::HighlightedText, Qt::white);
  p.setColor(QPalette::ToolTipBase, QColor(255, 252, 230));
  p.setColor(QPalette::ToolTipText, QColor(30, 36, 44));
  for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    p.setColor(QPalette::Disabled, role, QColor(150, 158, 168));
  }
  return p;
}

QPalette PaletteCrepuscule() {
  const QColor texte(214, 219, 225);
  const std::array<Role, 20> roles = {
      {{QPalette::Window, {38, 43, 49}},      {QPalette::WindowText, texte},
       {QPalette::Button, {58, 65, 73}},      {QPalette::ButtonText, texte},
       {QPalette::Base, {27, 31, 36}},        {QPalette::AlternateBase, {34, 39, 45}},
       {QPalette::Text, {222, 226, 231}},     {QPalette::BrightText, {236, 239, 242}},
       {QPalette::Highlight, {52, 98, 140}},  {QPalette::HighlightedText, {240, 243, 246}},
       {QPalette::ToolTipBase, {52, 58, 66}}, {QPalette::ToolTipText, texte},
       {QPalette::Link, {128, 184, 232}},     {QPalette::LinkVisited, {172, 160, 214}},
       {QPalette::Light, {84, 92, 102}},      {QPalette::Midlight, {70, 78, 87}},
       {QPalette::Mid, {60, 67, 75}},         {QPalette::Dark, {24, 27, 31}},
       {QPalette::Shadow, {12, 14, 16}},      {QPalette::PlaceholderText, {150, 158, 168}}}};
  return PaletteDesRoles(roles, QColor(118, 126, 136));
}

QPalette PaletteNuit() {
  const std::array<Role, 20> roles = {{{QPalette::Window, Rouge(14)},
                                       {QPalette::WindowText, Rouge(kRougeChiffre)},
                                       {QPalette::Button, Rouge(24)},
                                       {QPalette::ButtonText, Rouge(kRougeChiffre)},
                                       {QPalette::Base, Rouge(0)},
                                       {QPalette::AlternateBase, Rouge(14)},
                                       {QPalette::Text, Rouge(kRougeChiffre)},
                                       {QPalette::BrightText, Rouge(kRougeChiffre)},
                                       {QPalette::Highlight, Rouge(40)},
                                       {QPalette::HighlightedText, Rouge(kRougeDroite)},
                                       {QPalette::ToolTipBase, Rouge(24)},
                                       {QPalette::ToolTipText, Rouge(kRougeChiffre)},
                                       {QPalette::Link, Rouge(kRougeChiffre)},
                                       {QPalette::LinkVisited, Rouge(kRougeNom)},
                                       {QPalette::Light, Rouge(60)},
                                       {QPalette::Midlight, Rouge(48)},
                                       {QPalette::Mid, Rouge(40)},
                                       {QPalette::Dark, Rouge(78)},
                                       {QPalette::Shadow, Rouge(0)},
                                       {QPalette::PlaceholderText, Rouge(120)}}};
  return PaletteDesRoles(roles, Rouge(96));
}

} // namespace

const Teintes &TeintesDe(Eclairage eclairage) {
  static const Teintes kJour = {{238, 240, 243}, {247, 248, 250}, {168, 178, 189}, {219, 227, 236}, {244, 239, 222},
                                {222, 235, 246}, {176, 182, 189}, {0, 0, 0, 26},   {204, 108, 0}};
  static const Teintes kCrepuscule = {{30, 34, 39}, {38, 43, 49}, {78, 86, 96},  {50, 58, 67},  {42, 44, 40},
                                      {28, 40, 54}, {17, 19, 22}, {0, 0, 0, 60}, {230, 150, 40}};
  static const Teintes kNuit = {Rouge(10), Rouge(14), Rouge(78),           Rouge(32),           Rouge(kRougeTerre),
                                Rouge(0),  Rouge(20), QColor(0, 0, 0, 60), Rouge(kRougeChiffre)};
  return eclairage == Eclairage::Nuit ? kNuit : eclairage == Eclairage::Crepuscule ? kCrepuscule : kJour;
}

QPalette PaletteDe(Eclairage eclairage, bool contraste) {
  QPalette p = eclairage == Eclairage::Nuit         ? PaletteNuit()
               : eclairage == Eclairage::Crepuscule ? PaletteCrepuscule()
                                                    : PaletteJour();
  if (contraste && eclairage != Eclairage::Nuit) {
    const bool sombre = eclairage == Eclairage::Crepuscule;
    const QColor encre = sombre ? Qt::white : Qt::black;
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text, QPalette::ToolTipText}) {
      p.setColor(QPalette::All, role, encre);
      p.setColor(QPalette::Disabled, role, sombre ? QColor(176, 182, 190) : QColor(84, 90, 98));
    }
    p.setColor(QPalette::All, QPalette::Base, sombre ? Qt::black : Qt::white);
    p.setColor(QPalette::All, QPalette::Highlight, sombre ? QColor(30, 74, 116) : QColor(0, 60, 116));
  }
  return p;
}

double Contraste(const QColor &a, const QColor &b) {
  const auto [sombre, claire] = std::minmax({Luminance(a), Luminance(b)});
  return (claire + 0.05) / (sombre + 0.05);
}

double ContrasteDeTexte(Eclairage eclairage) { return eclairage == Eclairage::Nuit ? 3.0 : 4.5; }

QColor FondA(Eclairage eclairage, const QColor &fond) {
  switch (eclairage) {
  case Eclairage::Nuit:
    return Rouge(24 * Vivacite(fond.rgb()) * Vivacite(fond.rgb()));
  case Eclairage::Crepuscule:
    return FondMat(fond);
  case Eclairage::Jour:
  default:
    return fond;
  }
}

QColor EncreA(Eclairage eclairage, const QColor &encre, const QColor &fond) {
  if (eclairage == Eclairage::Jour) {
    return encre;
  }
  if (encre.rgb() == fond.rgb()) {
    return FondA(eclairage, fond);
  }
  if (eclairage == Eclairage::Crepuscule) {
    return EncreSurMat(encre, fond);
  }
  QColor rouge = Rouge(Clarte(fond.rgb()) < 0.5 ? RougeSurSombre(encre.rgb()) : RougeSurClair(encre.rgb()));
  rouge.setAlpha(encre.alpha());
  return rouge;
}

QColor EncreDeLigne(Eclairage eclairage, Couleur couleur, GenreLigne genre, const QColor &fond) {
  const QColor encre = EncreA(eclairage, CouleurQt(couleur), fond);
  if (eclairage == Eclairage::Nuit) {
    switch (genre) {
    case GenreLigne::Droite:
      return Rouge(kRougeDroite);
    case GenreLigne::Cote:
      return Rouge(kRougeCote);
    case GenreLigne::Grille:
    case GenreLigne::GrilleFine:
      return Rouge(encre.red() * kPartGrille);
    default:
      return encre;
    }
  }
  if (eclairage == Eclairage::Crepuscule && genre == GenreLigne::Grille) {
    return encre.darker(kGrilleMate);
  }
  const bool releve = eclairage == Eclairage::Crepuscule && genre == GenreLigne::Droite;
  return releve ? Lisible(encre, FondA(eclairage, fond), 3.0) : encre;
}

QColor EncreDeTexte(Eclairage eclairage, Couleur couleur, GenreTexte genre, const QColor &fond) {
  if (eclairage == Eclairage::Nuit) {
    return Rouge(genre >= GenreTexte::Bout ? kRougeNom : kRougeChiffre);
  }
  return Lisible(EncreA(eclairage, CouleurQt(couleur), fond), FondA(eclairage, fond), ContrasteDeTexte(eclairage));
}

QColor EncreDeLegende(Eclairage eclairage, Couleur couleur) {
  const QColor encre = EncreA(eclairage, CouleurQt(couleur));
  if (eclairage == Eclairage::Nuit) {
    // The three states of a stored line: on the sheet, on it as the first, not on it.
    return Rouge(couleur == kPremiereDroite  ? kRougeDroite
                 : couleur == kDroiteAjoutee ? kRougeCote
                                             : std::max(std::min(encre.red(), kRougeCote - 3), kRougeNom));
  }
  return Lisible(encre, TeintesDe(eclairage).carte, ContrasteDeTexte(eclairage));
}

QColor EncrePale(Eclairage eclairage) {
  if (eclairage == Eclairage::Nuit) {
    return Rouge(kRougeNom);
  }
  const QPalette p = PaletteDe(eclairage);
  return Lisible(p.color(QPalette::Disabled, QPalette::Text), p.color(QPalette::AlternateBase),
                 ContrasteDeTexte(eclairage));
}

void TeinteImage(Eclairage eclairage, QImage &image, const QColor &fond) {
  if (eclairage == Eclairage::Jour) {
    return;
  }
  const auto rouge = Clarte(fond.rgb()) < 0.5 ? RougeSurSombre : RougeSurClair;
  image.convertTo(QImage::Format_ARGB32);
  for (int y = 0; y < image.height(); ++y) {
    auto *ligne = reinterpret_cast<QRgb *>(image.scanLine(y)); // NOLINT(*-reinterpret-cast)
    for (QRgb &c : std::span(ligne, static_cast<std::size_t>(image.width()))) {
      if (eclairage == Eclairage::Nuit) {
        c = qRgba(static_cast<int>(rouge(c)), 0, 0, qAlpha(c));
      } else if (qAlpha(c) != 0) {
        c = EncreSurMat(QColor::fromRgba(c), fond).rgba();
      }
    }
  }
}

QColor CouleurQt(Couleur couleur) {
  return {static_cast<int>(couleur & 0xFFU), static_cast<int>((couleur >> 8U) & 0xFFU),
          static_cast<int>((couleur >> 16U) & 0xFFU)};
}

} // namespace velmaris::qt
