#include "complements/exercice/Exercice.hpp"

#include <array>

namespace velmaris {
namespace {

using enum SujetExercice;

/// Subject, sights, noise, index error, speed, clouds, doubt of the reckoning, latitude.
constexpr std::array<NiveauExercice, kNiveaux> kLesNiveaux{{
    {101, {SoleilMidi, 1, 0, 0, 0, 0, 5, 50}},
    {102, {SoleilCourse, 2, 0, 0, 0, 0, 10, 50}},
    {103, {SoleilCourse, 2, 0.3, 1, 5, 0, 10, 50}},
    {104, {SoleilCourse, 3, 0.5, 2, 6, 0, 15, 55}},
    {105, {SoleilLune, 2, 0.5, 2, 5, 0, 15, 55}},
    {106, {Crepuscule, 3, 0.3, 0, 0, 0, 10, 55}},
    {107, {Crepuscule, 4, 0.5, 2, 6, 0.3, 15, 55}},
    {108, {Crepuscule, 5, 0.7, 3, 8, 0.5, 20, 60}},
    {109, {SoleilLune, 3, 1, 3, 10, 0.3, 25, 60}},
    {110, {Crepuscule, 3, 1, 4, 12, 0.7, 30, 65}},
}};

} // namespace

const NiveauExercice &NiveauDe(std::size_t rang) { return kLesNiveaux.at(rang); }

} // namespace velmaris
