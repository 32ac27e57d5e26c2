#include "complements/papier/PageFiche.hpp"

#include "complements/papier/Nombres.hpp"

#include <cmath>
#include <utility>

namespace velmaris {
namespace {

constexpr double kMarge = 900;
constexpr double kPas = 297;        ///< from line to line
constexpr double kColonne = 5900;   ///< right edge of the figures
constexpr double kLigneVide = 1900; ///< length of a blank
constexpr double kRegles = 6300;    ///< left edge of the rules
constexpr double kTitre = 15;       ///< points
constexpr double kMots = 9.5;       ///< points
constexpr double kPetit = 7;        ///< points
constexpr Encre kFilet{.largeur = 0.4, .gris = 0.45};

/// The part of the form that a step opens; nothing for one that goes on.
int PartieOuverte(EtapeFiche etape) {
  switch (etape) {
  case EtapeFiche::Jour:
    return 0;
  case EtapeFiche::Lecture:
    return 1;
  case EtapeFiche::GhaHeure:
    return 2;
  case EtapeFiche::ProduitSinus:
    return 3;
  default:
    return -1;
  }
}

/// A result that others are built on, and which stands out.
bool EstResultat(EtapeFiche etape) {
  return etape == EtapeFiche::Observee || etape == EtapeFiche::Gha || etape == EtapeFiche::AngleLocal ||
         etape == EtapeFiche::Declinaison || etape == EtapeFiche::Calculee || etape == EtapeFiche::Azimut ||
         etape == EtapeFiche::Intercept;
}

/// Writes one page from its top to its foot.
class Page {
public:
  Page(FormatPapier format, const MotsFiche &mots) : page_(FeuilletVide(format)), mots_(mots) {}

  void Titre(const std::string &titre, const std::string &astre) {
    page_.titre = titre + ", " + astre;
    y_ = kMarge + 300;
    page_.Mot({kMarge, y_}, titre, {.taille = kTitre, .gras = true});
    page_.Mot({page_.largeur - kMarge, y_}, astre, {.taille = kTitre, .gras = true, .ancrage = Ancrage::Droite});
    y_ += 140;
    page_.Trait({kMarge, y_}, {page_.largeur - kMarge, y_}, {.largeur = 1});
  }

  void Ligne(const LigneCalcul &ligne, bool blanc, const std::string &suite) {
    const auto rang = static_cast<std::size_t>(ligne.etape);
    if (const int partie = PartieOuverte(ligne.etape); partie >= 0) {
      y_ += kPas * 1.5;
      page_.Mot({kMarge, y_}, mots_.parties.at(static_cast<std::size_t>(partie)), {.taille = 11, .gras = true});
      y_ += 60;
    }
    y_ += kPas;
    const bool gras = EstResultat(ligne.etape);
    if (gras) {
      page_.Trait({kColonne - kLigneVide, y_ - kPas * 0.78}, {kColonne, y_ - kPas * 0.78});
    }
    page_.Mot({kMarge, y_}, mots_.etapes.at(rang), {.taille = kMots, .gras = gras});
    if (blanc) {
      page_.Trait({kColonne - kLigneVide, y_ + 30}, {kColonne, y_ + 30}, {.largeur = 0.5, .gris = 0, .tiret = 1.5});
    } else {
      page_.Mot({kColonne, y_}, ligne.valeur + suite, {.taille = kMots, .gras = gras, .ancrage = Ancrage::Droite});
    }
    page_.Mot({kRegles, y_}, mots_.regles.at(rang), {.taille = kMots - 1.5, .italique = true});
  }

  void Note(const std::string &texte) {
    y_ += kPas * 1.4;
    page_.Mot({kMarge, y_}, texte, {.taille = kMots});
  }

  Feuillet Finit() {
    const double bas = page_.hauteur - kMarge;
    page_.Trait({kMarge, bas - 220}, {page_.largeur - kMarge, bas - 220}, kFilet);
    page_.Mot({kMarge, bas}, mots_.pied, {.taille = kPetit});
    return std::move(page_);
  }

private:
  Feuillet page_;
  const MotsFiche &mots_;
  double y_ = 0;
};

/// The word that follows a step's figure, or stands for it.
std::string Suite(const FicheCalcul &fiche, EtapeFiche etape, const MotsFiche &mots) {
  switch (etape) {
  case EtapeFiche::Bord:
    return mots.bords.at(static_cast<std::size_t>(fiche.bord));
  case EtapeFiche::Intercept:
    return " " + (fiche.vers ? mots.vers : mots.depuis);
  default:
    return {};
  }
}

Feuillet FaitPage(const FicheCalcul &fiche, bool blancs, const std::string &titre, FormatPapier format,
                  const MotsFiche &mots) {
  Page page(format, mots);
  page.Titre(titre, fiche.astre);
  for (const LigneCalcul &ligne : fiche.lignes) {
    page.Ligne(ligne, blancs && ligne.source != SourceFiche::Visee, Suite(fiche, ligne.etape, mots));
  }
  if (!blancs) {
    page.Note(mots.controle + Dixiemes(std::fabs(fiche.controle)) + " M " +
              (fiche.controle >= 0 ? mots.vers : mots.depuis));
  }
  return page.Finit();
}

} // namespace

std::vector<Feuillet> PagesFiche(const FicheCalcul &fiche, bool blancs, FormatPapier format, const MotsFiche &mots) {
  std::vector<Feuillet> pages;
  if (blancs) {
    pages.push_back(FaitPage(fiche, true, mots.titre, format, mots));
  }
  pages.push_back(FaitPage(fiche, false, blancs ? mots.reponses : mots.titre, format, mots));
  return pages;
}

} // namespace velmaris
