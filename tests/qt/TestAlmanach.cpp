#include "complements/almanach/Arrondis.hpp"
#include "complements/almanach/JourDuCiel.hpp"
#include "complements/papier/MiseEnPage.hpp"
#include "complements/papier/PagesAlmanach.hpp"
#include "shell/qt/peinture/FeuilletQt.hpp"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <array>
#include <fstream>
#include <gtest/gtest.h>
#include <map>

/// The almanac's pages as they are painted, and as another program reads them in the file.
namespace velmaris::essais {
namespace {

/// Words of the pages, from the language file.
MotsAlmanach Mots(bool francais) {
  MotsAlmanach mots;
  std::ifstream fichier(std::string(VELMARIS_DONNEES) + (francais ? "/FR.txt" : "/EN.txt"));
  const std::string controle = "MotAlmanach\\";
  std::string ligne;
  std::size_t nombre = 0;
  while (std::getline(fichier, ligne)) {
    if (ligne.starts_with(controle)) {
      const std::size_t fin = ligne.find('\\', controle.size());
      const std::size_t rang = std::stoul(ligne.substr(ligne.rfind('\\') + 1));
      mots.textes.at(rang) = ligne.substr(controle.size(), fin - controle.size());
      ++nombre;
    }
  }
  EXPECT_EQ(nombre, kMotsAlmanach);
  return mots;
}

const Etoiles &EtoilesLues() {
  static const Etoiles etoiles = [] {
    Etoiles table;
    std::vector<std::string> noms;
    ChargeEtoiles(table, noms);
    return table;
  }();
  return etoiles;
}

Almanach Figures(const DateCivile &debut, const DateCivile &fin, std::size_t latitudes) {
  DemandeAlmanach demande{.debut = debut, .fin = fin, .latitudes = {}};
  for (std::size_t i = 0; i < latitudes; ++i) {
    demande.latitudes.push_back(75 - 6.5 * static_cast<double>(i));
  }
  return *CalculeAlmanach(demande, EtoilesLues());
}

/// Which texts stand on another's or too near to it, or leave the page's own margins: what is inked of them, without
/// the room for accents.
std::vector<std::string> Fautes(const Feuillet &page) {
  constexpr double kEntre = 15; // between two figures of a line, 1/1440 inch
  constexpr double kTrop = 12;  // that a letter's own side may reach beyond
  const ZonePage boite = ZoneDe(page);
  constexpr int kPointsParMetre = 56693; // 1440 an inch
  QImage support(8, 8, QImage::Format_ARGB32);
  support.setDotsPerMeterX(kPointsParMetre);
  support.setDotsPerMeterY(kPointsParMetre);
  // By bands of the page, higher than any text: what overlaps a text stands in its band or in one beside it.
  constexpr double kBande = 400;
  std::map<int, std::vector<std::pair<QRectF, std::string>>> bandes;
  std::vector<std::string> fautes;
  for (const ElementFeuillet &element : page.elements) {
    const auto *mot = std::get_if<MotFeuillet>(&element);
    if (mot == nullptr) {
      continue;
    }
    const QRectF zone = qt::ZoneDuMot(*mot, support, 1);
    const QRectF encre = zone.adjusted(0, 0.28 * zone.height(), 0, -0.22 * zone.height());
    if (encre.left() < boite.gauche - kTrop || encre.right() > boite.droite + kTrop ||
        encre.bottom() > page.hauteur - 500 || encre.top() < 500) {
      fautes.push_back("leaves the page: " + mot->texte);
    }
    const int bande = static_cast<int>(encre.top() / kBande);
    for (const int voisine : {bande - 1, bande, bande + 1}) {
      for (const auto &[autre, texte] : bandes[voisine]) {
        if (autre.intersects(encre.adjusted(-kEntre, 0, kEntre, 0))) {
          fautes.push_back("overlaps: " + mot->texte + " / " + texte);
        }
      }
    }
    bandes[bande].emplace_back(encre, mot->texte);
  }
  return fautes;
}

class PagesImprimees : public ::testing::TestWithParam<std::tuple<bool, FormatPapier>> {};

TEST_P(PagesImprimees, NoTextOverlapsAnotherOrLeavesThePaper) {
  const auto [francais, format] = GetParam();
  // Three days with as many latitudes as there may be; 400 days, whose Sun and Polaris need the most columns.
  for (const Almanach &almanach :
       {Figures({2026, 9, 28}, {2026, 9, 30}, kLatitudesAlmanachMax), Figures({2026, 1, 1}, {2027, 2, 4}, 0)}) {
    const bool longue = almanach.jours.size() > 3;
    const auto pages = PagesAlmanach(almanach, Mots(francais),
                                     {.format = format, .jours = !longue, .increments = !longue, .fait = {2026, 5, 1}});
    ASSERT_TRUE(pages);
    // The pages of increments are all alike: the last of them stands for them.
    constexpr std::size_t kAvantIncrements = 11;
    for (std::size_t i = 0; i < pages->size(); i += longue || i < kAvantIncrements || i + 2 >= pages->size() ? 1 : 4) {
      const Feuillet &page = (*pages)[i];
      EXPECT_EQ(page.largeur, TailleDuPapier(format).x);
      for (const std::string &faute : Fautes(page)) {
        ADD_FAILURE() << page.titre << ": " << faute;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(LanguesEtPapiers, PagesImprimees,
                         ::testing::Combine(::testing::Bool(),
                                            ::testing::Values(FormatPapier::A4, FormatPapier::Lettre)));

/// The text of a file, laid out as on its pages.
QStringList LignesDuPdf(const std::string &octets, const QString &fichier) {
  std::ofstream(fichier.toStdString(), std::ios::binary) << octets;
  QProcess processus;
  processus.start("pdftotext", {"-layout", fichier, "-"});
  EXPECT_TRUE(processus.waitForFinished());
  return QString::fromUtf8(processus.readAllStandardOutput()).split('\n');
}

/// Figures of the hours as they stand in a line: "268 13.4", "N 20 18.2".
QStringList FiguresDe(const QString &ligne) {
  static const QRegularExpression angle(R"(((?:[NS] )?\d{1,3} \d\d\.\d))");
  QStringList figures;
  QRegularExpressionMatchIterator trouves = angle.globalMatch(ligne);
  while (trouves.hasNext()) {
    figures << trouves.next().captured(1);
  }
  return figures;
}

QString Gha(double degres) { return QString::fromStdString(TexteAngle(DixiemesUnTour(degres), '.', 1)); }

QString Dec(double degres) { return QString::fromStdString(TexteDeclinaison(DixiemesDe(degres), '.')); }

TEST(AlmanachImprime, EveryHourInTheFileIsTheSkyOfThatHourRounded) {
  const DateCivile debut{2027, 2, 27};
  const Almanach almanach = Figures(debut, {2027, 3, 1}, 5);
  const auto pages = PagesAlmanach(almanach, Mots(false), {.tables = false, .increments = false, .fait = {2026, 5, 1}});
  const QTemporaryDir dossier;
  const QStringList lignes = LignesDuPdf(qt::OctetsPdf(*pages, {}), dossier.filePath("a.pdf"));
  static const QRegularExpression heure(R"(^ ?(\d\d) +\d)");
  int trouvees = 0;
  std::array<int, 2> rangs{}; // hours seen of the left page, of the right one
  for (const QString &ligne : lignes) {
    const QRegularExpressionMatch m = heure.match(ligne);
    const QStringList figures = FiguresDe(ligne);
    if (!m.hasMatch() || figures.size() < 4) {
      continue;
    }
    const bool gauche = figures.size() >= 9;
    const int rang = rangs[gauche ? 0 : 1]++;
    ASSERT_EQ(m.captured(1).toInt(), rang % 24) << ligne.toStdString();
    const CielDuMoment ciel = CielDeLHeure(JourPlusTard(debut, rang / 24), rang % 24, 0);
    QStringList attendues;
    if (gauche) {
      attendues << Gha(ciel.tempsSideral);
    }
    for (const GenreAstre genre :
         gauche ? std::vector{GenreAstre::Venus, GenreAstre::Mars, GenreAstre::Jupiter, GenreAstre::Saturne}
                : std::vector{GenreAstre::Soleil, GenreAstre::Lune}) {
      const PlaceGeocentrique place = PlaceDe(ciel, {genre, 0});
      attendues << Gha(place.gha) << Dec(place.declinaison);
    }
    EXPECT_EQ(figures.mid(0, attendues.size()), attendues) << ligne.toStdString();
    trouvees += static_cast<int>(attendues.size());
  }
  EXPECT_EQ(rangs[0], 72);
  EXPECT_EQ(rangs[1], 72);
  EXPECT_EQ(trouvees, 72 * 13);
}

TEST(AlmanachImprime, EveryStarInTheFileIsItsPlaceAtNoonOfTheMiddleDay) {
  const Almanach almanach = Figures({2027, 2, 27}, {2027, 3, 1}, 0);
  const auto pages = PagesAlmanach(almanach, Mots(false), {.tables = false, .increments = false, .fait = {2026, 5, 1}});
  const QTemporaryDir dossier;
  const QString texte = LignesDuPdf(qt::OctetsPdf(*pages, {}), dossier.filePath("a.pdf")).join('\n').simplified();
  const CielDuMoment ciel = CielDeLHeure({2027, 2, 28}, 12, 0);
  for (const EtoileAlmanach &e : almanach.periodes.front().etoiles) {
    const PlaceGeocentrique place = PlaceDe(ciel, {GenreAstre::Etoile, e.rang});
    const QString rangee = QString::fromStdString(e.nom) + ' ' + Gha(-place.ascension) + ' ' + Dec(place.declinaison);
    EXPECT_TRUE(texte.contains(rangee)) << rangee.toStdString();
  }
}

TEST(AlmanachImprime, AFootTellsTheTheoryTheDayItWasMadeAndThePage) {
  const Almanach almanach = Figures({2026, 9, 28}, {2026, 9, 28}, 1);
  const auto pages = PagesAlmanach(almanach, Mots(false), {.fait = {2026, 5, 1}});
  for (std::size_t i = 0; i < pages->size(); ++i) {
    std::string tout;
    for (const ElementFeuillet &element : (*pages)[i].elements) {
      const auto *mot = std::get_if<MotFeuillet>(&element);
      tout += mot != nullptr ? mot->texte + '\n' : "";
    }
    EXPECT_NE(tout.find("VSOP87D"), std::string::npos);
    EXPECT_NE(tout.find("Made 1 May 2026"), std::string::npos);
    EXPECT_NE(tout.find("page " + std::to_string(i + 1) + '/' + std::to_string(pages->size())), std::string::npos);
  }
}

TEST(AlmanachImprime, ItStopsBetweenPages) {
  const Almanach almanach = Figures({2026, 9, 1}, {2026, 9, 30}, 1);
  std::stop_source source;
  const Avancement avancement{source.get_token(), [&](double part) {
                                if (part > 0.3) {
                                  source.request_stop();
                                }
                              }};
  EXPECT_FALSE(PagesAlmanach(almanach, Mots(false), {}, avancement));
}

} // namespace
} // namespace velmaris::essais
