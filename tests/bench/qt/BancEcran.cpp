#include "../Mesure.hpp"
#include "shell/Demarrage.hpp"
#include "shell/bureau/Evenements.hpp"
#include "shell/carte/Carte.hpp"
#include "shell/ciel/EcranCiel.hpp"
#include "shell/ciel/SourisCiel.hpp"
#include "shell/droites/Droites.hpp"
#include "shell/qt/cadre/Dialogue.hpp"
#include "shell/qt/cadre/Fenetre.hpp"
#include "shell/qt/peinture/Toile.hpp"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

#include <cstdlib>

namespace velmaris {
namespace {

constexpr Ecran kGrandEcran{28800, 16200, 1080};

/// The program in its window, on a screen of 1920 by 1080 that nobody sees.
class Programme {
public:
  Programme() {
    const std::string chemin = dossier_.path().toStdString();
    bureau.dossiers = {chemin, VELMARIS_DONNEES, VELMARIS_DONNEES, chemin};
    bureau.ports.boite = [](const Boite &) -> bool { std::abort(); };
    Donnees_Charge(bureau, kGrandEcran);
    fenetre = std::make_unique<qt::Fenetre>(scene);
    fenetre->show();
    QApplication::processEvents();
    toile = fenetre->findChild<qt::Toile *>("Image1");
  }

  /// An event, all widgets brought in line, and the window painted.
  template <class Geste> void Joue(Geste &&geste) {
    scene.Joue(geste);
    fenetre->repaint();
  }

  void Feuille(int zoom) {
    Donnees &d = bureau.donnees;
    for (const auto &[champ, texte] : {std::pair{&d.TDate[0], "21"},
                                       {&d.TDate[1], "06"},
                                       {&d.TDate[2], "2026"},
                                       {&d.Text3, "12"},
                                       {&d.Text4, "05"},
                                       {&d.Text5, "30"},
                                       {&d.Text6, "05"},
                                       {&d.Text7, "10"},
                                       {&d.Text8, "47"},
                                       {&d.Text9, "30"},
                                       {&d.Text10, "2,5"},
                                       {&d.Text11, "-1"},
                                       {&d.Text12, "34"},
                                       {&d.Text13, "65"},
                                       {&d.Text25, "38"}}) {
      PoseTexte(bureau, *champ, texte);
    }
    PoseOption(bureau, d.OptN[0]);
    PoseValeur(bureau, d.HScroll1, zoom * 10);
    Joue([this] { Command2_Click(bureau, -1); });
  }

  Bureau bureau;
  qt::Scene scene{bureau};
  std::unique_ptr<qt::Fenetre> fenetre;
  qt::Toile *toile = nullptr;

private:
  QTemporaryDir dossier_;
};

/// The recorded outlines of a surface with nothing but the toolkit's polylines.
void PeintNu(QImage &image, const std::vector<QPolygonF> &lignes) {
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::black, 1));
  for (const QPolygonF &ligne : lignes) {
    painter.drawPolyline(ligne);
  }
}

std::vector<QPolygonF> LignesNues(const Surface &surface, double facteur) {
  std::vector<QPolygonF> lignes;
  for (const Trace &trace : surface.traces) {
    if (const auto *ligne = std::get_if<Polyligne>(&trace)) {
      QPolygonF points;
      for (const Point &p : ligne->points) {
        points << QPointF(p.x * facteur, p.y * facteur);
      }
      lignes.push_back(points);
    }
  }
  return lignes;
}

/// A chart read, recorded and painted, from the key to the picture, against QPainter::drawPolyline of its lines alone.
/// Argument 0: the whole world; else miles over the height of a sheet off Brittany.
void CarteEntiere(benchmark::State &etat) {
  Programme p;
  if (etat.range(0) != 0) {
    p.Feuille(static_cast<int>(etat.range(0)));
  }
  p.bureau.donnees.Check2.valeur = 0;
  const auto carte = [&] {
    p.Joue([&] {
      Efface(p.bureau.image1);
      OuvreCartes(p.bureau);
    });
  };
  carte();
  const std::vector<QPolygonF> lignes = LignesNues(p.bureau.image1, qt::PixelsParTwip(*p.toile));
  QImage image(p.toile->size(), QImage::Format_RGB32);
  Compare(
      etat, carte, [&] { PeintNu(image, lignes); }, 5);
}
BENCHMARK(CarteEntiere)->ArgName("milles")->Arg(0)->Arg(200)->Arg(3000)->Unit(benchmark::kMillisecond);

/// A step of the zoom slider over a sheet, with "Toujours Visible": sheet and chart drawn anew and painted, against
/// QPainter::drawPolyline of the lines alone.
void PasDeZoom(benchmark::State &etat) {
  Programme p;
  p.Feuille(static_cast<int>(etat.range(0)));
  const std::vector<QPolygonF> lignes = LignesNues(p.bureau.image1, qt::PixelsParTwip(*p.toile));
  QImage image(p.toile->size(), QImage::Format_RGB32);
  Controle &zoom = p.bureau.donnees.HScroll1;
  int pas = 10;
  const auto tourne = [&] {
    p.Joue([&] { BougeCurseur(p.bureau, zoom, zoom.valeur + pas); });
    pas = -pas;
  };
  Compare(
      etat, tourne, [&] { PeintNu(image, lignes); }, 10);
}
BENCHMARK(PasDeZoom)->ArgName("milles")->Arg(200)->Arg(2000)->Unit(benchmark::kMillisecond);

/// The sky worked out, its window brought in line and painted, against a fill of its picture. At 1920 by 1080.
void CielEntier(benchmark::State &etat) {
  Programme p;
  p.Feuille(200);
  p.Joue([&] { Command13_Click(p.bureau, -1); });
  QApplication::processEvents();
  auto *fenetre = p.fenetre->findChild<qt::Dialogue *>();
  fenetre->resize(1913, 1040);
  QApplication::processEvents();
  QImage image(fenetre->size(), QImage::Format_RGB32);
  Compare(
      etat,
      [&] {
        p.scene.Joue([&] { ciel::Command1_Click(p.bureau, -1); });
        fenetre->repaint();
      },
      [&] { image.fill(Qt::blue); }, 10);
}
BENCHMARK(CielEntier)->Unit(benchmark::kMillisecond);

/// The pointer over a star's label: its constellation lit and painted, against a fill of its picture.
void SurvolCiel(benchmark::State &etat) {
  Programme p;
  p.Joue([&] { Command13_Click(p.bureau, -1); });
  QApplication::processEvents();
  auto *fenetre = p.fenetre->findChild<qt::Dialogue *>();
  fenetre->resize(1913, 1040);
  QApplication::processEvents();
  QImage image(fenetre->size(), QImage::Format_RGB32);
  int etoile = 1;
  Compare(
      etat,
      [&] {
        p.scene.Joue([&] { ciel::Laet_MouseMove(p.bureau, etoile); });
        fenetre->repaint();
        etoile = etoile % static_cast<int>(kEtoilesCiel) + 1;
      },
      [&] { image.fill(Qt::blue); }, 10);
}
BENCHMARK(SurvolCiel)->Unit(benchmark::kMillisecond);

/// "Astres" to the first picture, and back.
void OuvreCiel(benchmark::State &etat) {
  Programme p;
  QImage image(1913, 1040, QImage::Format_RGB32);
  Compare(
      etat,
      [&] {
        p.scene.Joue([&] { Command13_Click(p.bureau, -1); });
        QApplication::processEvents();
        p.scene.Joue([&] { Ciel_Ferme(p.bureau); });
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      },
      [&] { image.fill(Qt::blue); }, 5);
}
BENCHMARK(OuvreCiel)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmaris

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
