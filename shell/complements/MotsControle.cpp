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
  const auto dixiemes = std::lround(std::fabs(degres) * kDixiemesParDegre);
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

/// What parts a word from what it is about, by the language of the words.
const char *DeuxPoints(const Fiche &fiche) {
  return fiche.TexteControle.legende.find(" :") == std::string::npos ? ": " : " : ";
}

bool EstSousHorizon(const FicheControle &controle) {
  return !controle.causes.empty() && controle.causes.front().cause == Cause::Horizon;
}

/// Whether the told line runs in another direction than today's: near the meridian the told azimuth can be that of the
/// sight before, or fold over.
bool AzimutFaux(const FicheControle &controle) {
  constexpr double kEcartAzimut = 1; ///< degree
  return controle.actuel &&
         std::fabs(std::remainder(controle.actuel->azimut - controle.dit.azimut, 360.0)) > kEcartAzimut;
}

/// Whether a line is to be drawn with care whatever its grade.
bool EstDouteux(const FicheControle &controle) {
  return controle.actuel && (EstSousHorizon(controle) || AzimutFaux(controle) ||
                             std::fabs(controle.actuel->intercept) > kInterceptSuspect);
}

/// The cause that a line of two has room for. A large intercept that the sky of today has too is the sight's own.
std::string CauseEnBref(const Fiche &fiche, const FicheControle &controle) {
  const auto breve = [&](Cause cause) { return fiche.CauseBreve.at(Rang(cause)).legende; };
  if (EstSousHorizon(controle)) {
    return breve(Cause::Horizon);
  }
  if (AzimutFaux(controle) && controle.grade != GradeControle::Avertissement) {
    return fiche.Etape.at(Rang(EtapeControle::Azimut)).legende;
  }
  if (EstDouteux(controle) && controle.grade != GradeControle::Avertissement) {
    return fiche.GlissadeBreve.legende;
  }
  return controle.causes.empty() ? std::string() : breve(controle.causes.front().cause);
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
  const bool douteux = EstDouteux(controle);
  const bool dit = douteux || controle.grade != GradeControle::Accord;
  const std::string cause = dit ? CauseEnBref(fiche, controle) : "";
  if (bref && dit && !cause.empty()) {
    return std::string(kSignes[douteux ? Rang(GradeControle::Avertissement) : Rang(controle.grade)]) + " " + cause;
  }
  const GradeControle grade =
      EstSousHorizon(controle) || AzimutFaux(controle) ? GradeControle::Avertissement : controle.grade;
  return MotsDuGrade(fiche, grade) + (cause.empty() ? "" : DeuxPoints(fiche) + cause);
}

std::string MotsDuVerdict(const Fiche &fiche, const FicheControle &controle, const std::string &astre) {
  std::string mots = astre + (astre.empty() ? "" : "   ") + JugementDuControle(fiche, controle, false);
  if (controle.actuel) {
    mots += ", " + fiche.TexteContre.legende + Dixiemes(controle.actuel->intercept) + " '  (" +
            AvecSigne(controle.ecart) + ")";
  }
  return mots;
}

std::vector<std::string> MotsDesCauses(const Fiche &fiche, const FicheControle &controle) {
  std::vector<std::string> lignes;
  for (const PartCause &part : controle.causes) {
    const std::string minutes = part.minutes == 0 ? "" : DeuxPoints(fiche) + AvecSigne(part.minutes) + " '";
    lignes.push_back(fiche.MotCause.at(Rang(part.cause)).legende + minutes);
  }
  return lignes;
}

std::vector<std::string> MotsDesGlissades(const Bureau &bureau, const FicheControle &controle) {
  const Fiche &fiche = bureau.fiche;
  std::vector<std::string> lignes;
  for (const Glissade &glissade : controle.glissades) {
    const std::string detail = Detail(bureau.donnees, glissade);
    lignes.push_back(fiche.MotGlissade.at(Rang(glissade.genre)).legende +
                     (detail.empty() ? "" : DeuxPoints(fiche) + detail) + fiche.TexteReste.legende +
                     Dixiemes(glissade.intercept) + " '");
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
