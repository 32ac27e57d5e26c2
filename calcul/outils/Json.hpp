#pragma once

#include "foundations/Erreur.hpp"

#include <string>
#include <string_view>

namespace velmaris {

/// Appends a key to an object under way: a comma first unless the object was just opened.
void AjouteCle(std::string &sortie, std::string_view cle);

/// Appends a text in quotes; bytes that aren't UTF-8 are replaced.
void AjouteTexte(std::string &sortie, std::string_view texte);

/// Appends the shortest text that reads back to the same 64-bit value; null for what isn't a number.
void AjouteNombre(std::string &sortie, double valeur);

/// Appends the shortest text that reads back to the same 32-bit value; null for what isn't a number.
void AjouteNombre(std::string &sortie, float valeur);

/// Appends a member with its text or its figure.
void AjouteMembre(std::string &sortie, std::string_view cle, std::string_view texte);
void AjouteMembre(std::string &sortie, std::string_view cle, double valeur);
void AjouteMembre(std::string &sortie, std::string_view cle, float valeur);

/// Appends the member "erreur" of an object under way, with its number and its text.
void AjouteErreur(std::string &sortie, int numero, std::string_view texte);

/// Appends a list.
/// @param ecrit  appends one element
template <class Elements, class Ecrit> void AjouteListe(std::string &sortie, const Elements &elements, Ecrit &&ecrit) {
  sortie += '[';
  for (const auto &element : elements) {
    if (sortie.back() != '[') {
      sortie += ',';
    }
    ecrit(element);
  }
  sortie += ']';
}

/// Appends one object and its end of line.
/// @param membres  appends the members; what it throws as an `Erreur` becomes the member "erreur" after them
/// @return whether there was none
template <class Membres> bool EcritObjet(std::string &sortie, Membres &&membres) {
  bool reussi = false;
  sortie += '{';
  try {
    membres();
    reussi = true;
  } catch (const Erreur &erreur) {
    AjouteErreur(sortie, erreur.numero, SensErreur(erreur.numero));
  }
  sortie += "}\n";
  return reussi;
}

/// Appends an object of the one member "texte".
/// @param calcul  gives the text; what it throws as an `Erreur` becomes the member "erreur" instead
/// @return whether there was none
template <class Calcul> bool EcritTexte(std::string &sortie, Calcul &&calcul) {
  return EcritObjet(sortie, [&] {
    const std::string texte = calcul();
    AjouteMembre(sortie, "texte", texte);
  });
}

} // namespace velmaris
