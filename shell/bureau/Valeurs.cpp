#include "shell/bureau/Valeurs.hpp"

#include <algorithm>
#include <chrono>

namespace velmaris {

Valeurs::Valeurs(std::filesystem::path fichier) : fichier_(std::move(fichier)), enMemoire_(fichier_.empty()) {
  Ouvre(patience_);
}

Valeurs::~Valeurs() {
  if (enAttente()) {
    Patience derniere;
    Ecrit(derniere);
  }
}

/// An address that is the same for keys that differ in the case of their ASCII letters alone.
Valeurs::Adresse Valeurs::AdresseDe(std::string_view application, std::string_view section, std::string_view cle) {
  std::string petite(cle);
  std::transform(petite.begin(), petite.end(), petite.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return {std::string(application), std::string(section), std::move(petite)};
}

/// Takes over what another program has written. What waits here is newer.
void Valeurs::Rafraichit(Patience &patience) const {
  if (!magasin_.ouvert()) {
    return;
  }
  const auto avant = patience.reste();
  std::vector<ValeurGardee> presentes;
  bool lues = false;
  if (magasin_.Lit(presentes, lues, patience) != Acces::Fait) {
    return;
  }
  if (lues) {
    std::erase_if(valeurs_, [](const auto &v) { return !v.second.enAttente; });
    for (ValeurGardee &v : presentes) {
      valeurs_.try_emplace(AdresseDe(v.application, v.section, v.cle), Valeur{std::move(v.texte)});
    }
    lu_ = true;
  }
  // Reading succeeds also while only writing is refused.
  if (patience.reste() == avant && attente_.empty()) {
    patience.Refait();
  }
}

/// Opens the file where it isn't open, and reads it for the first time.
void Valeurs::Ouvre(Patience &patience) {
  if (enMemoire_) {
    return;
  }
  if (!magasin_.ouvert()) {
    const Acces ouvert = magasin_.Ouvre(fichier_, patience);
    if (!magasin_.misDeCote().empty()) {
      etat_ = EtatMagasin::Abime;
    }
    if (ouvert == Acces::Refuse) {
      PasseEnMemoire();
    }
  }
  Rafraichit(patience);
}

/// Goes on in memory with the values that have been read.
void Valeurs::PasseEnMemoire() {
  magasin_.Ferme();
  attente_.clear();
  enMemoire_ = true;
  etat_ = EtatMagasin::SansTrace;
}

std::string Valeurs::GetSetting(std::string_view application, std::string_view section, std::string_view cle,
                                std::string_view defaut) const {
  if (!lectureFigee_) {
    Rafraichit(patience_);
  }
  const auto trouvee = valeurs_.find(AdresseDe(application, section, cle));
  return trouvee == valeurs_.end() ? std::string(defaut) : trouvee->second.texte;
}

void Valeurs::SaveSetting(std::string_view application, std::string_view section, std::string_view cle,
                          std::string_view valeur) {
  ValeurGardee neuve{std::string(application), std::string(section), std::string(cle), std::string(valeur)};
  if (groupe_.ouvert) {
    groupe_.valeurs.push_back(std::move(neuve));
  } else {
    Retient({std::move(neuve)});
  }
}

/// Takes new values into memory and writes them.
void Valeurs::Retient(const std::vector<ValeurGardee> &valeurs) {
  for (const ValeurGardee &v : valeurs) {
    const Adresse adresse = AdresseDe(v.application, v.section, v.cle);
    Valeur &presente = valeurs_[adresse];
    if (presente.enAttente) {
      std::erase_if(attente_, [&](const ValeurGardee &a) {
        return AdresseDe(a.application, a.section, a.cle) == adresse; // the newer one is written in its turn
      });
    }
    presente = {v.texte, true};
    attente_.push_back(v);
  }
  Ecrit(patience_);
}

/// Writes all that waits as one: a group stays whole, however often it is tried.
void Valeurs::Ecrit(Patience &patience) {
  if (!lu_) {
    Ouvre(patience);
  }
  if (enMemoire_) {
    attente_.clear();
  }
  if (!lu_ || attente_.empty()) {
    return;
  }
  const Acces ecrit = magasin_.Ecrit(attente_, patience);
  if (ecrit == Acces::Fait) {
    attente_.clear();
    for (auto &[adresse, v] : valeurs_) {
      v.enAttente = false;
    }
    patience_.Refait();
  } else if (ecrit != Acces::Retenu) {
    PasseEnMemoire();
  }
}

void Valeurs::Retente() {
  if (enAttente()) {
    Patience aucune(std::chrono::nanoseconds::zero());
    Ecrit(aucune);
  }
}

bool Valeurs::enAttente() const { return !enMemoire_ && (!lu_ || !attente_.empty()); }

void Valeurs::OublieEnAttente() {
  attente_.clear();
  std::erase_if(valeurs_, [](const auto &v) { return v.second.enAttente; });
}

} // namespace velmaris
