#include "shell/Acces.hpp"
#include "shell/Impression.hpp"

namespace velmaris {
namespace {

using Fenetre = Impression;

// One control a line.
// clang-format off
// NOLINTNEXTLINE(cppcoreguidelines-avoid-c-arrays,modernize-avoid-c-arrays)
constexpr LigneImpression kImpression[] = {
    {RANG(Frame4, 0), Genre::Groupe, "", {60, 9240, 2660, 1600}, "", "", {.visible = false}},
    {RANG(Frame4, 1), Genre::Groupe, "", {2850, 9240, 2660, 1600}, "", "", {.visible = false}},
    {RANG(Frame4, 2), Genre::Groupe, "", {5610, 9240, 2660, 1600}, "", "", {.visible = false}},
    {RANG(Frame4, 3), Genre::Groupe, "", {8355, 9240, 2660, 1600}, "", "", {.visible = false}},
    {RANG(Label32, 0), Genre::Etiquette, "Frame4", {1200, 300, 1400, 225}, "00:00:00"},
    {RANG(Label32, 1), Genre::Etiquette, "Frame4", {1200, 300, 1400, 225}, "00:00:00"},
    {RANG(Label32, 2), Genre::Etiquette, "Frame4", {1200, 300, 1400, 225}, "00:00:00"},
    {RANG(Label32, 3), Genre::Etiquette, "Frame4", {1200, 300, 1400, 225}, "00:00:00"},
    {RANG(Label33, 0), Genre::Etiquette, "Frame4", {1200, 540, 1400, 225}, "00°00' N"},
    {RANG(Label33, 1), Genre::Etiquette, "Frame4", {1200, 540, 1400, 225}, "00°00' N"},
    {RANG(Label33, 2), Genre::Etiquette, "Frame4", {1200, 540, 1400, 225}, "00°00' N"},
    {RANG(Label33, 3), Genre::Etiquette, "Frame4", {1200, 540, 1400, 225}, "00°00' N"},
    {RANG(Label34, 0), Genre::Etiquette, "Frame4", {1200, 780, 1400, 225}, "000°00' W"},
    {RANG(Label34, 1), Genre::Etiquette, "Frame4", {1200, 780, 1400, 225}, "000°00' W"},
    {RANG(Label34, 2), Genre::Etiquette, "Frame4", {1200, 780, 1400, 225}, "000°00' W"},
    {RANG(Label34, 3), Genre::Etiquette, "Frame4", {1200, 780, 1400, 225}, "000°00' W"},
    {RANG(Label35, 0), Genre::Etiquette, "Frame4", {1200, 1020, 1400, 225}, "000°"},
    {RANG(Label35, 1), Genre::Etiquette, "Frame4", {1200, 1020, 1400, 225}, "000°"},
    {RANG(Label35, 2), Genre::Etiquette, "Frame4", {1200, 1020, 1400, 225}, "000°"},
    {RANG(Label35, 3), Genre::Etiquette, "Frame4", {1200, 1020, 1400, 225}, "000°"},
    {RANG(Label36, 0), Genre::Etiquette, "Frame4", {1200, 1260, 1400, 225}, "00.0'"},
    {RANG(Label36, 1), Genre::Etiquette, "Frame4", {1200, 1260, 1400, 225}, "00.0'"},
    {RANG(Label36, 2), Genre::Etiquette, "Frame4", {1200, 1260, 1400, 225}, "00.0'"},
    {RANG(Label36, 3), Genre::Etiquette, "Frame4", {1200, 1260, 1400, 225}, "00.0'"},
};
// clang-format on

} // namespace

std::span<const LigneImpression> TableImpression() { return kImpression; }

void InitialiseImpression(Impression &page) {
  PourChaque(page, [](const LigneImpression &ligne, Controle &c) { c = ControleNeuf(ligne, kFenetreImpression); });
}

} // namespace velmaris
