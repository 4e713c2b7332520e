#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "engine/bits_voies.h"
#include "engine/greffier.h"
#include "engine/moteur.h"
#include "engine/passes.h"
#include "engine/trouve.h"

namespace sudoku::SUDOKU_MOTEUR {
namespace {

// The engine for blocks of side S, on lanes. Where some content that counts is no single symbol of the grid,
// or where symbols are equal, it hands the grid to the plain one.
template <int S>
class MoteurVoies : public Moteur {
 public:
  std::uint64_t Passes(GameState& jeu, Grille& grille, int VpPasses, bool seconde) override {
    Bloc& bloc = grille.Donnees();
    if (!Convient(bloc)) {
      if (!textes_) textes_ = FabriqueTextes(N);
      return textes_->Passes(jeu, grille, VpPasses, seconde);
    }
    deductions_.tours = 0;
    ChaquePasse(jeu, VpPasses, seconde, [&](std::int32_t mode) {
      const bool saisies = Amorce(bloc, mode);
      return Deduit(bloc, mode) || !saisies;
    });
    return deductions_.tours;
  }

 private:
  static constexpr int N = S * S;
  static constexpr auto kCases = static_cast<std::size_t>(N * N);
  using V = Voies<S>;
  using Mot = MotDe<S>;
  using Bits = BitsDe<S>;
  static constexpr int kVoies = Largeur<S>::kVoies;
  static constexpr int kMots = Largeur<S>::kMots;
  static constexpr int kDernierBit = 8 * sizeof(Bits) - 1;

  bool Convient(const Bloc& bloc);
  // Which contents count, and what units have of them. True if some cell has Etat 2.
  bool Amorce(Bloc& bloc, std::int32_t mode);
  void AmorceLignes(const Code* positions);
  void AmorceUnites();
  void AmorceCases(const Code* positions);
  void Compte(TypeUnite type, int numero, int symbole) {
    Ajoute<S>(contenus_.symboles[type], numero, symbole);
    Ajoute<S>(contenus_.unites[type], symbole, numero);
  }
  void Prouve(const Bloc& bloc);
  // All the rest of the pass. True if some empty cell has a solution.
  bool Deduit(Bloc& bloc, std::int32_t mode);
  void EcritCandidats(Bloc& bloc) const;

  std::unique_ptr<Moteur> textes_;
  std::shared_ptr<const Alphabet> alphabet_;  // of the last grid; held, so that a new one is told from it
  bool differents_ = false;                   // its symbols
  bool autres_ = false;                       // some cell holds a symbol in another case
  std::vector<Code> positions_;               // of what counts, where `autres_`
  Contenus<S> contenus_{};
  Greffier greffier_;
  Deductions<S, Greffier> deductions_{contenus_, greffier_};
};

template <int S>
bool MoteurVoies<S>::Convient(const Bloc& bloc) {
  if (alphabet_ != bloc.alphabet) {
    alphabet_ = bloc.alphabet;
    differents_ = true;
    for (int p = 0; p < N; ++p) differents_ &= alphabet_->Premiere(p) == p;
  }
  if (!differents_) return false;
  const Code* const saisie = bloc.saisie.data();
  const std::int32_t* const etat = bloc.etat.data();
  Code derniere = kVide;
  for (std::size_t i = 1; i <= kCases; ++i) {
    const Code code = saisie[i];
    derniere = std::max(derniere, etat[i] == kErronee ? kVide : code);
  }
  autres_ = derniere >= N;
  if (!autres_) return true;
  for (std::size_t i = 1; i <= kCases; ++i) {
    if (bloc.etat[i] != kErronee && bloc.saisie[i] != kVide && alphabet_->Position(bloc.saisie[i]) < 0)
      return false;
  }
  return true;
}

template <int S>
bool MoteurVoies<S>::Amorce(Bloc& bloc, std::int32_t mode) {
  const bool saisies = PoseContenus(bloc, mode);
  if (autres_) {
    positions_.resize(bloc.possibleTexte.size());
    std::ranges::transform(bloc.possibleTexte, positions_.begin(),
                           [this](Code code) { return alphabet_->Position(code); });
  }
  const Code* const positions = (autres_ ? positions_ : bloc.possibleTexte).data() + 1;
  if constexpr (kMots == 1) {
    AmorceLignes(positions);
    AmorceUnites();
  } else {
    AmorceCases(positions);
  }
  return saisies;
}

// Cell by cell, where a set takes several words.
template <int S>
void MoteurVoies<S>::AmorceCases(const Code* positions) {
  contenus_ = {};
  for (int type = 0; type < 3; ++type) {
    for (int mot = 0; mot < kMots; ++mot) {
      std::fill_n(&contenus_.unites[type][mot * kVoies + N], kVoies - N, ~Mot{0});
    }
  }
  for (int l = 0; l < N; ++l, positions += N) {
    for (int pile = 0; pile < S; ++pile) {
      for (int k = 0; k < S; ++k) {
        const int c = pile * S + k;
        const int carre = l / S * S + pile;
        if (const int symbole = positions[c]; symbole < 0) {
          Ajoute<S>(contenus_.ouvertes[kLigne], l, c);
          Ajoute<S>(contenus_.ouvertes[kColonne], c, l);
          Ajoute<S>(contenus_.ouvertes[kCarre], carre, l % S * S + k);
        } else {
          Compte(kLigne, l, symbole);
          Compte(kColonne, c, symbole);
          Compte(kCarre, carre, symbole);
        }
      }
    }
  }
}

// Symbols and open cells of rows and columns, and the symbols of blocks.
template <int S>
void MoteurVoies<S>::AmorceLignes(const Code* positions) {
  V colonnes{};
  V vides{};
  alignas(64) Mot bits[Taille(S)][Taille(kVoies)] = {};
  alignas(64) Mot bande[Taille(kVoies)];
  for (int b = 0; b < S; ++b) {
    // All rows of the band before the first is looked at as a whole: a load waits for smaller stores.
    for (int k = 0; k < S; ++k, positions += N) {
      Mot ligne = 0;
      for (int c = 0; c < N; ++c) {
        bits[k][c] = static_cast<Mot>(positions[c] < 0 ? 0 : Bits{1} << (positions[c] & kDernierBit));
        ligne |= bits[k][c];
      }
      contenus_.symboles[kLigne][S * b + k] = ligne;
    }
    V carres{};
    for (int k = 0; k < S; ++k) {
      const V symboles = Lit<S>(bits[k]);
      const V ouvertes = Nulles(symboles);
      carres |= symboles;
      vides |= ouvertes & Partout<S>(Bits{1} << (S * b + k));
      contenus_.ouvertes[kLigne][S * b + k] = static_cast<Mot>(EnBits(ouvertes) & kLieux<S>.tous);
    }
    colonnes |= carres;
    Ecrit<S>(bande, carres);
    for (int pile = 0; pile < S; ++pile) {
      Mot carre = 0;
      for (int k = 0; k < S; ++k) carre |= bande[S * pile + k];
      contenus_.symboles[kCarre][S * b + pile] = carre;
    }
  }
  Ecrit<S>(contenus_.symboles[kColonne], colonnes);
  Ecrit<S>(bande, vides);
  std::copy_n(bande, N, contenus_.ouvertes[kColonne]);
}

// The rest, turned round from that.
template <int S>
void MoteurVoies<S>::AmorceUnites() {
  for (int type = 0; type < 3; ++type) {
    V unites = ~Etale<S>(kLieux<S>.tous);
    for (int u = 0; u < N; ++u) unites |= Etale<S>(contenus_.symboles[type][u]) & Partout<S>(Bits{1} << u);
    Ecrit<S>(contenus_.unites[type], unites);
  }
  for (int c = 0; c < N; ++c) {
    Bits ouvertes = 0;
    for (int k = 0; k < S; ++k) {
      const Bits ligne = contenus_.ouvertes[kLigne][c / S * S + k];
      ouvertes |= (ligne >> (c % S * S) & ((Bits{1} << S) - 1)) << (k * S);
    }
    contenus_.ouvertes[kCarre][c] = static_cast<Mot>(ouvertes);
  }
}

// What the first pass proved of cells whose content doesn't count or isn't that symbol. Rows without such a
// cell are seen at once.
template <int S>
void MoteurVoies<S>::Prouve(const Bloc& bloc) {
  const auto prouvee = [&bloc](std::size_t i) {
    return bloc.sure[i] != kVide && bloc.sure[i] != bloc.possibleTexte[i];
  };
  for (std::size_t premiere = 1; premiere <= kCases; premiere += N) {
    int quelques = 0;
    for (std::size_t i = premiere; i < premiere + N; ++i) quelques |= static_cast<int>(prouvee(i));
    if (quelques == 0) continue;
    for (std::size_t i = premiere; i < premiere + N; ++i) {
      if (prouvee(i)) deductions_.Prouve(static_cast<int>(i) - 1, alphabet_->Position(bloc.sure[i]));
    }
  }
}

template <int S>
bool MoteurVoies<S>::Deduit(Bloc& bloc, std::int32_t mode) {
  greffier_.Commence(bloc);
  const Appui appui = VersSure(mode) ? Appui::kSur : Appui::kPossible;
  using D = Deductions<S, Greffier>;
  bool aRemplir = deductions_.Candidats(appui) == D::kSolutions;
  if (!aRemplir) {
    if (mode == kSecondePasse) Prouve(bloc);
    aRemplir = deductions_.Deduit() == D::kSolutions;
  }
  std::vector<Code>& solutions = VersSure(mode) ? bloc.sure : bloc.poss;
  deductions_.ChaqueSolution(
      [&](int cellule, int symbole) { solutions[static_cast<std::size_t>(cellule) + 1] = symbole; });
  EcritCandidats(bloc);
  return aRemplir;
}

template <int S>
void MoteurVoies<S>::EcritCandidats(Bloc& bloc) const {
  if constexpr (kMots == 1) {
    for (int l = 0; l < N; ++l) {
      std::copy_n(deductions_.CandidatsDeLigne(l), N, &bloc.candidats[static_cast<std::size_t>(N * l + 1)]);
    }
  } else {
    std::uint64_t* mots = &bloc.candidats[static_cast<std::size_t>(bloc.mots)];
    for (int i = 0; i < N * N; ++i, mots += bloc.mots) {
      const BitsDe<S> candidats = deductions_.CandidatsDe(i);
      for (int mot = 0; mot < kMots; ++mot) mots[mot] = SUDOKU_MOTEUR::Mot(candidats, mot);
    }
  }
}

}  // namespace
}  // namespace sudoku::SUDOKU_MOTEUR
