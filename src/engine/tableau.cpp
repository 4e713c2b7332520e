#include "engine/tableau.h"

namespace sudoku {

template <int W>
void Tableau<W>::Adopte(GameState& jeuDeLaGrille, Grille& grille) {
  jeu = &jeuDeLaGrille;
  bloc = &grille.Donnees();
  // A Masque<W> is W words and nothing else.
  candidats = reinterpret_cast<M*>(bloc->candidats.data());
  if (alphabetTenu == bloc->alphabet) return;
  alphabetTenu = bloc->alphabet;
  geometrieTenue = bloc->geometrie;
  geo = geometrieTenue.get();
  alphabet = alphabetTenu.get();
  N = geo->N();
  S = geo->S();
  cases = geo->Cases();
  plein = M::Premiers(N);
  premieres = M{};
  classe.assign(At(N), M{});
  for (int p = 0; p < N; ++p) {
    premieres.Ajoute(alphabet->Premiere(p));
    for (const int egale : alphabet->Egales(p)) classe[At(p)].Ajoute(egale);
  }
  doublons = premieres != plein;
  groupe.assign(At(S), M{});
  residu.assign(At(S), M{});
  for (int p = 0; p < N; ++p) {
    groupe[At(p / S)].Ajoute(p);
    residu[At(p % S)].Ajoute(p);
  }
  ouverte.assign(At(cases + 1), 0);
  for (int type = kColonne; type <= kCarre; ++type) {
    valeurs[type].assign(At(N), M{});
    sures[type].assign(At(N), M{});
    places[type].assign(At(cases), M{});
    sale[type].assign(At(N), 1);
  }
  saleSymbole.assign(At(N), 1);
  compteur.Dimensionne(N);
}

template <int W>
bool Tableau<W>::Amorce() {
  versSure = jeu->VgEtat == kSaisieGrille || jeu->VgEtat == kJeu;
  aRemplir = false;
  longs = false;
  bloc->journal.Vide();
  for (int type = kColonne; type <= kCarre; ++type) {
    valeurs[type].assign(At(N), M{});
    sures[type].assign(At(N), M{});
  }
  AmorceCases();
  ListePossibles();
  bool saisies = false;
  for (int i = 1; i <= cases; ++i) saisies |= bloc->etat[At(i)] == kPossible;
  return saisies;
}

// Which contents count, which symbols each unit has, and the results of the last pass dropped.
template <int W>
void Tableau<W>::AmorceCases() {
  const bool gardeSure = jeu->VgEtat == kSecondePasse;
  for (int i = 1; i <= cases; ++i) {
    const bool compte = bloc->Compte(i);
    const Code saisie = bloc->saisie[At(i)];
    ouverte[At(i)] = !compte;
    bloc->possibleTexte[At(i)] = compte ? saisie : kVide;
    bloc->poss[At(i)] = kVide;
    if (!gardeSure) bloc->sure[At(i)] = kVide;
    if (compte) {
      longs |= alphabet->Long(saisie);
      const int position = alphabet->Position(saisie);
      if (position >= 0) {
        for (int type = kColonne; type <= kCarre; ++type) {
          valeurs[type][At(geo->Unite(type, i) - 1)] |= classe[At(position)];
        }
      }
    }
    if (gardeSure && bloc->sure[At(i)] != kVide) {
      for (int type = kColonne; type <= kCarre; ++type) {
        sures[type][At(geo->Unite(type, i) - 1)].Ajoute(geo->Place(type, i));
      }
    }
  }
}

template <int W>
void Tableau<W>::ListePossibles() {
  for (int i = 1; i <= cases; ++i) {
    if (!ouverte[At(i)]) {
      candidats[i] = M{};
    } else if (longs) {
      candidats[i] = ListeAvecTextes(i);
    } else {
      candidats[i] = plein.Sauf(valeurs[kColonne][At(geo->Unite(kColonne, i) - 1)] |
                                valeurs[kLigne][At(geo->Unite(kLigne, i) - 1)] |
                                valeurs[kCarre][At(geo->Unite(kCarre, i) - 1)]);
    }
  }
}

// Where texts of several symbols count, what goes depends on what went before: block, row, column, cell by cell.
template <int W>
Masque<W> Tableau<W>::ListeAvecTextes(int cellule) const {
  M liste = plein;
  for (const int type : {kCarre, kLigne, kColonne}) {
    liste = RetireTous(liste, type, geo->Unite(type, cellule), cellule);
  }
  return liste;
}

template <int W>
Masque<W> Tableau<W>::RetireTous(M liste, int type, int unite, int cellule) const {
  for (const int i : geo->Serie(type, unite)) {
    if (i != cellule && !ouverte[At(i)]) {
      liste = SansTexte(*alphabet, liste, alphabet->TexteDe(bloc->saisie[At(i)]));
    }
  }
  return liste;
}

template <int W>
void Tableau<W>::Releve() {
  for (int i = 1; i <= cases; ++i) {
    if (ouverte[At(i)]) {
      if (candidats[i].Seul()) PoseSolution(i, candidats[i].Premier());
    } else {
      const Code possible = bloc->possibleTexte[At(i)];
      if (possible != kVide && !alphabet->Long(possible)) (versSure ? bloc->sure : bloc->poss)[At(i)] = possible;
    }
  }
}

template <int W>
void Tableau<W>::Retourne() {
  for (int type = kColonne; type <= kCarre; ++type) places[type].assign(At(cases), M{});
  for (int i = 1; i <= cases; ++i) {
    if (!ouverte[At(i)]) continue;
    M* const colonne = &Places(kColonne, geo->Unite(kColonne, i), 0);
    M* const ligne = &Places(kLigne, geo->Unite(kLigne, i), 0);
    M* const carre = &Places(kCarre, geo->Unite(kCarre, i), 0);
    const int dansColonne = geo->Place(kColonne, i);
    const int dansLigne = geo->Place(kLigne, i);
    const int dansCarre = geo->Place(kCarre, i);
    candidats[i].Chaque([&](int p) {
      const int s = doublons ? alphabet->Premiere(p) : p;
      colonne[s].Ajoute(dansColonne);
      ligne[s].Ajoute(dansLigne);
      carre[s].Ajoute(dansCarre);
    });
  }
  ToutSale();
}

template <int W>
void Tableau<W>::PoseSolution(int cellule, Code code) {
  Code& solution = (versSure ? bloc->sure : bloc->poss)[At(cellule)];
  aRemplir |= bloc->saisie[At(cellule)] == kVide;
  if (solution == code) return;
  solution = code;
  Salit(cellule);
  if (!versSure) return;
  for (int type = kColonne; type <= kCarre; ++type) {
    sures[type][At(geo->Unite(type, cellule) - 1)].Ajoute(geo->Place(type, cellule));
  }
}

template <int W>
void Tableau<W>::Salit(int cellule) {
  for (int type = kColonne; type <= kCarre; ++type) sale[type][At(geo->Unite(type, cellule) - 1)] = 1;
}

template <int W>
void Tableau<W>::ToutSale() {
  for (int type = kColonne; type <= kCarre; ++type) sale[type].assign(At(N), 1);
  saleSymbole.assign(At(N), 1);
}

template <int W>
void Tableau<W>::Enleve(int cellule, int symbole) {
  candidats[cellule] = candidats[cellule].Sauf(classe[At(symbole)]);
  for (int type = kColonne; type <= kCarre; ++type) {
    Places(type, geo->Unite(type, cellule), symbole).Enleve(geo->Place(type, cellule));
  }
  saleSymbole[At(symbole)] = 1;
  Salit(cellule);
}

template <int W>
void Tableau<W>::Remplace(int cellule, const M& sequence) {
  const M avant = candidats[cellule];
  avant.Sauf(sequence).Chaque([&](int p) {
    if (!classe[At(p)].Croise(sequence)) Enleve(cellule, alphabet->Premiere(p));
  });
  candidats[cellule] = sequence;
  Salit(cellule);
  if (sequence.Dans(avant)) return;
  // Sets that overlap, in a contradictory grid, can bring a symbol back; other units may have to take it out again.
  sequence.Chaque([&](int p) {
    for (int type = kColonne; type <= kCarre; ++type) {
      Places(type, geo->Unite(type, cellule), alphabet->Premiere(p)).Ajoute(geo->Place(type, cellule));
    }
  });
  ToutSale();
}

template <int W>
bool Tableau<W>::EnleveDuTexte(int cellule, int symbole) {
  Code& possible = bloc->possibleTexte[At(cellule)];
  const Texte avant = alphabet->TexteDe(possible);
  const Texte reste = Sans(avant, TexteVue(&alphabet->Symboles()[At(symbole)], 1));
  if (reste.size() == avant.size()) return false;
  possible = bloc->alphabet->Numero(reste);
  return true;
}

template <int W>
Texte Tableau<W>::TexteDe(const M& positions) const {
  Texte texte;
  positions.Chaque([&](int p) { texte += alphabet->Symboles()[At(p)]; });
  return texte;
}

template <int W>
std::uint32_t Tableau<W>::Mots(const M& m) {
  const auto debut = static_cast<std::uint32_t>(bloc->journal.mots.size());
  bloc->journal.mots.insert(bloc->journal.mots.end(), m.mots.begin(), m.mots.end());
  return debut;
}

template <int W>
std::uint32_t Tableau<W>::Note(Argument argument) {
  if (!enregistre) return 0;
  bloc->journal.arguments.push_back(argument);
  return static_cast<std::uint32_t>(bloc->journal.arguments.size() - 1);
}

template <int W>
std::uint32_t Tableau<W>::Note(Argument argument, const M& a) {
  if (!enregistre) return 0;
  argument.masques = Mots(a);
  return Note(argument);
}

template <int W>
std::uint32_t Tableau<W>::Note(Argument argument, const M& a, const M& b) {
  if (!enregistre) return 0;
  argument.masques = Mots(a);
  Mots(b);
  return Note(argument);
}

template <int W>
void Tableau<W>::NoteFait(int cellule, std::uint32_t argument) {
  if (enregistre) bloc->journal.faits.push_back({cellule, argument});
}

template <int W>
void Tableau<W>::NoteFait(int cellule, std::uint32_t argument, const M& exclus) {
  if (!enregistre) return;
  bloc->journal.faits.push_back({cellule, argument, static_cast<std::int32_t>(Mots(exclus))});
}

template <int W>
Masque<W> SansTexte(const Alphabet& alphabet, Masque<W> positions, TexteVue texte) {
  std::vector<int> ordre;
  Texte symboles;
  positions.Chaque([&](int p) {
    ordre.push_back(p);
    symboles += alphabet.Symboles()[static_cast<std::size_t>(p)];
  });
  for (std::size_t i = 0; (i = Cherche(symboles, texte, i)) != Texte::npos; i += texte.size()) {
    for (std::size_t j = 0; j < texte.size(); ++j) positions.Enleve(ordre[i + j]);
  }
  return positions;
}

template struct Tableau<1>;
template struct Tableau<2>;
template struct Tableau<3>;
template Masque<1> SansTexte<1>(const Alphabet&, Masque<1>, TexteVue);
template Masque<2> SansTexte<2>(const Alphabet&, Masque<2>, TexteVue);
template Masque<3> SansTexte<3>(const Alphabet&, Masque<3>, TexteVue);

}  // namespace sudoku
