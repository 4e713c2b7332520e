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

#if defined(__AVX2__)
// The bit of each of eight symbols; what is shifted by more than there are bits, as by numbers below 0,
// leaves nothing.
template <class Bits>
SUDOKU_EN_LIGNE auto HuitBits(const Code* positions) {
  using Huit [[gnu::vector_size(8 * sizeof(Bits))]] = Bits;
  const __m256i huit = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(positions));
  if constexpr (sizeof(Bits) == 4) {
    return reinterpret_cast<Huit>(_mm256_sllv_epi32(_mm256_set1_epi32(1), huit));
  } else {
    const auto quatre = [](__m128i p) {
      return _mm256_sllv_epi64(_mm256_set1_epi64x(1), _mm256_cvtepi32_epi64(p));
    };
    const __m256i moities[2] = {quatre(_mm256_castsi256_si128(huit)),
                                quatre(_mm256_extracti128_si256(huit, 1))};
    Huit bits;
    std::memcpy(&bits, moities, sizeof bits);
    return bits;
  }
}
#endif

// A row's symbols as bits, none for an open cell, whose position is negative. Result: all of them.
template <int S>
SUDOKU_EN_LIGNE MotDe<S> BitsDeLigne(const Code* positions, MotDe<S>* bits) {
  using Bits = BitsDe<S>;
  const auto bit = [&](int c) {
    return positions[c] < 0 ? 0 : Bits{1} << (positions[c] & static_cast<int>(8 * sizeof(Bits) - 1));
  };
  Bits tous = 0;
  int c = 0;
#if defined(__AVX2__)
  decltype(HuitBits<Bits>(positions)) ensemble{};
  if constexpr (S == 3 || S == 4) {
    // Written at once: it is read at once.
    decltype(ensemble) derniers{};
    const auto premiers = HuitBits<Bits>(positions);
    if constexpr (S == 4) derniers = HuitBits<Bits>(positions + 8);
    if constexpr (S == 3) derniers[0] = bit(8);
    ensemble = premiers | derniers;
    const __m256i melees =
        _mm256_packus_epi32(reinterpret_cast<__m256i>(premiers), reinterpret_cast<__m256i>(derniers));
    _mm256_store_si256(reinterpret_cast<__m256i*>(bits), _mm256_permute4x64_epi64(melees, 0xD8));
    c = S * S;
  }
  for (; c < S * S / 8 * 8; c += 8) {
    const auto huit = HuitBits<Bits>(positions + c);
    ensemble |= huit;
    if constexpr (sizeof(MotDe<S>) == sizeof(Bits)) std::memcpy(bits + c, &huit, sizeof huit);
  }
  ensemble |= __builtin_shufflevector(ensemble, ensemble, 4, 5, 6, 7, 4, 5, 6, 7);
  ensemble |= __builtin_shufflevector(ensemble, ensemble, 2, 3, 2, 3, 2, 3, 2, 3);
  tous = ensemble[0] | ensemble[1];
#endif
  for (; c < S * S; ++c) {
    bits[c] = static_cast<MotDe<S>>(bit(c));
    tous |= bits[c];
  }
  return static_cast<MotDe<S>>(tous);
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
      contenus_.symboles[kLigne][S * b + k] = BitsDeLigne<S>(positions, bits[k]);
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

// What the first pass proved of cells whose content doesn't count or isn't that symbol. That there is no such
// cell is seen at once.
template <int S>
void MoteurVoies<S>::Prouve(const Bloc& bloc) {
  const Code* const sures = bloc.sure.data() + 1;
  const Code* const contenus = bloc.possibleTexte.data() + 1;
  const auto autre = [&](std::size_t i) { return sures[i] == kVide ? 0 : sures[i] ^ contenus[i]; };
  Code quelques = 0;
  for (std::size_t i = 0; i < kCases; ++i) quelques |= autre(i);
  if (quelques == 0) return;
  for (std::size_t i = 0; i < kCases; ++i) {
    if (autre(i) != 0) deductions_.Prouve(static_cast<int>(i), alphabet_->Position(sures[i]));
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
