#pragma once

#include <cstdint>

#include "platform/systeme.h"
#include "play/voisins.h"
#include "text/texte.h"

namespace sudoku {

// Reads the value SubKeyRef of the registry key KeyName under KeyRoot into KeyVal: a text as it is, a 32-bit
// number as decimal text; a value of another type leaves KeyVal alone. False, and KeyVal empty, where there
// is no such value or it can't be taken.
bool GetKeyValue(Systeme& systeme, std::uint32_t KeyRoot, TexteVue KeyName, TexteVue SubKeyRef,
                 Texte& KeyVal);

// Starts the system's information tool, which the registry names; says so where there is none.
void StartSysInfo(Systeme& systeme);

// The about box.
class FRMNRVAbout {
 public:
  FRMNRVAbout(Systeme& systeme, Fenetre& proprietaire);
  FRMNRVAbout(const FRMNRVAbout&) = delete;
  FRMNRVAbout& operator=(const FRMNRVAbout&) = delete;

  // Its table, without handlers.
  static Fenetre Table(Fenetre& proprietaire);

  // Shows it and comes back when it has closed.
  void Montre() { systeme_.MontreModale(fenetre_); }

 private:
  Systeme& systeme_;
  Fenetre fenetre_;
};

// The about box, as the main window sees it.
class AProposDuJeu : public APropos {
 public:
  AProposDuJeu(Systeme& systeme, Fenetre& principale) : systeme_(systeme), principale_(principale) {}
  void MnuAbout_Click() override;

 private:
  Systeme& systeme_;
  Fenetre& principale_;
};

}  // namespace sudoku
