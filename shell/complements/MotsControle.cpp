#include "shell/complements/MotsControle.hpp"

#include "foundations/TexteNombre.hpp"

#include <array>
#include <cmath>

namespace velmaris {
namespace {

constexpr std::array<const char *, 4> kSignes = {"?", "=", "≈", "!"};
constexpr double kDixiemesParDegre = 600;

template <class Enum> std::size_t Rang(Enum valeur) { return static_cast<std::size_t>(valeur); }

std::string Dixiemes(double valeur) { return Format(valeur, "0.0"); }

/// Degrees and tenths of a minute, a negative angle with one sign: "-12° 34.5'".
std::string Angle(double degres) {
  const auto dixiemes = static_cast<long>(std::lround(std::fabs(degres) * kDixiemesParDegre));
  const auto parDegre = static_cast<long>(kDixiemesParDegre);
  return std::string(degres < 0 && dixiemes != 0 ? "-" : "") + std::to_string(dixiemes / parDegre) + "° " +
         Format(static_cast<double>(dixiemes % parDegre) / 10, "00.0") + "'";
}

std::string Valeur(const std::optional<double> &valeur, UniteControle unite) {
  if (!valeur) {
    return "-";
  }
  switch (unite) {
  case UniteControle::Secondes:
    return Format(*valeur, "0.00") + " s";
  case UniteControle::Minutes:
    return Dixiemes(*valeur) + " '";
  case UniteControle::Degres:
    break;
  }
  return Angle(*valeur);
}

std::string SansLigne(const FicheControle &controle, const Fiche &fiche) {
  return controle.refus ? fiche.MotRefus.at(Rang(*controle.refus)).legende : std::string();
}

/// What a typed figure would have to be changed by.
std::string Ajout(double ajout, const char *unite) {
  return std::string(ajout < 0 ? "" : "+") + TexteGeneral(ajout) + " " + unite;
}

/// What a slip is about, after its name; empty where the name says all.
std::string Detail(const Donnees &d, const Glissade &glissade) {
  switch (glissade.genre) {
  case GenreGlissade::LectureDegres:
    return Ajout(glissade.ajout, "°");
  case GenreGlissade::Heure:
    return Ajout(glissade.ajout, "h");
  case GenreGlissade::Minute:
    return Ajout(glissade.ajout, "min");
  case GenreGlissade::Secondes:
    return Ajout(glissade.ajout, "s");
  case GenreGlissade::Jour:
    return Ajout(glissade.ajout, "");
  case GenreGlissade::Chiffres:
    return glissade.champ == ChampGlisse::Aucun ? std::string() : d.Nom.at(Rang(glissade.champ) - 1).legende;
  case GenreGlissade::Bord: {
    constexpr std::array<std::size_t, 3> kBords = {1, 2, 0}; // lower, centre, upper, as the options stand
    return d.Option6.at(kBords.at(Rang(glissade.contact))).legende;
  }
  case GenreGlissade::Collimation:
  case GenreGlissade::CoteLatitude:
  case GenreGlissade::CoteLongitude:
    break;
  }
  return {};
}

/// The cause that a line of two has room for.
std::string CauseEnBref(const Fiche &fiche, const FicheControle &controle) {
  if (!controle.glissades.empty()) {
    return fiche.GlissadeBreve.legende;
  }
  return controle.causes.empty() ? std::string() : fiche.CauseBreve.at(Rang(controle.causes.front().cause)).legende;
}

} // namespace

std::string AvecSigne(double valeur) {
  const std::string texte = Dixiemes(valeur);
  return valeur > 0 && texte != "0.0" ? "+" + texte : texte;
}

std::string MotsDuGrade(const Fiche &fiche, GradeControle grade) {
  return std::string(kSignes.at(Rang(grade))) + " " + fiche.MotGrade.at(Rang(grade)).legende;
}

std::string ChiffresDuControle(const Fiche &fiche, const FicheControle &controle, bool bref) {
  const std::string nom = bref ? "" : fiche.TexteControle.legende;
  const char *const unite = bref ? " (" : " '  (";
  return controle.actuel ? nom + Dixiemes(controle.actuel->intercept) + unite + AvecSigne(controle.ecart) + ")"
                         : nom + "-";
}

std::string JugementDuControle(const Fiche &fiche, const FicheControle &controle, bool bref) {
  if (!controle.actuel) {
    return std::string(kSignes[0]) + " " + SansLigne(controle, fiche);
  }
  const bool dit = !bref && (controle.grade != GradeControle::Accord || !controle.glissades.empty());
  const std::string cause = dit ? CauseEnBref(fiche, controle) : "";
  return MotsDuGrade(fiche, controle.grade) + (cause.empty() ? "" : " : " + cause);
}

std::string MotsDuVerdict(const Fiche &fiche, const FicheControle &controle, const std::string &astre) {
  const std::string debut = astre + (astre.empty() ? "" : "   ") + MotsDuGrade(fiche, controle.grade);
  if (!controle.actuel) {
    return debut + ", " + SansLigne(controle, fiche);
  }
  return debut + ", " + fiche.TexteContre.legende + Dixiemes(controle.actuel->intercept) + " '  (" +
         AvecSigne(controle.ecart) + ")";
}

std::vector<std::string> MotsDesCauses(const Fiche &fiche, const FicheControle &controle) {
  std::vector<std::string> lignes;
  for (const PartCause &part : controle.causes) {
    const std::string minutes = part.minutes == 0 ? "" : " : " + AvecSigne(part.minutes) + " '";
    lignes.push_back(fiche.MotCause.at(Rang(part.cause)).legende + minutes);
  }
  return lignes;
}

std::vector<std::string> MotsDesGlissades(const Bureau &bureau, const FicheControle &controle) {
  const Fiche &fiche = bureau.fiche;
  std::vector<std::string> lignes;
  for (const Glissade &glissade : controle.glissades) {
    const std::string detail = Detail(bureau.donnees, glissade);
    lignes.push_back(fiche.MotGlissade.at(Rang(glissade.genre)).legende + (detail.empty() ? "" : " : " + detail) +
                     fiche.TexteReste.legende + Dixiemes(glissade.intercept) + " '");
  }
  return lignes;
}

void PoseLignes(Fiche &fiche, const FicheControle &controle) {
  for (std::size_t i = 0; i < kEtapesFiche; ++i) {
    const LigneControle *ligne = i < controle.lignes.size() ? &controle.lignes[i] : nullptr;
    fiche.Dit.at(i).legende = ligne != nullptr ? Valeur(ligne->dit, ligne->unite) : "";
    fiche.Actuel.at(i).legende = ligne != nullptr ? Valeur(ligne->actuel, ligne->unite) : "";
    fiche.Raison.at(i).legende =
        ligne != nullptr && ligne->raison ? fiche.MotCause.at(Rang(*ligne->raison)).legende : std::string();
  }
}

std::string TexteDeFiche(const Fiche &fiche) {
  const auto rangee = [](const std::string &a, const std::string &b, const std::string &c, const std::string &d) {
    return a + "\t" + b + "\t" + c + "\t" + d + "\n";
  };
  const auto &t = fiche.Colonne;
  std::string texte = fiche.Verdict.legende + "\n";
  texte += rangee(t[0].legende, t[1].legende, t[2].legende, t[3].legende);
  for (std::size_t i = 0; i < kEtapesFiche; ++i) {
    texte += rangee(fiche.Etape.at(i).legende, fiche.Dit.at(i).legende, fiche.Actuel.at(i).legende,
                    fiche.Raison.at(i).legende);
  }
  const auto liste = [&](const Controle &titre, const std::array<Controle, 4> &lignes) {
    texte += titre.legende + "\n";
    for (const Controle &ligne : lignes) {
      texte += ligne.legende + (ligne.legende.empty() ? "" : "\n");
    }
  };
  liste(fiche.TitreCauses, fiche.Causes);
  liste(fiche.TitreGlissades, fiche.Glissades);
  return texte;
}

} // namespace velmaris
