#include "lot/verifier.h"

#include "lot/grille.h"
#include "lot/route.h"
#include "lot/solutions.h"
#include "lot/temoin.h"
#include "solver/auto_driver.h"

namespace sudoku::lot {
namespace {

class SansPlateau : public PlateauAuto {
 public:
  void Affiche() override {}
  void Message(TexteVue) override {}
};

class Verifier : public Ouvrier {
 public:
  explicit Verifier(const Appel& appel) : lecteur_(jeu_, appel.symboles) {}

  void Traite(std::string_view champ, Reponse& reponse) override;

 private:
  int Compte();
  int PositionSaisie(int cellule) const;
  int Rejoue(Temoin& temoin);
  bool Remplis();
  bool ResoutJuste();
  bool RouteJuste();
  bool SaisiesJustes() const;

  GameState jeu_;
  Evaluateur evaluateur_{jeu_};
  SansPlateau plateau_;
  AutoDriver driver_{jeu_, evaluateur_, plateau_};
  Route route_;
  AutoDriver conteur_{jeu_, evaluateur_, plateau_, Lecture::kContenus, &route_};
  LecteurGrille lecteur_;
  CompteurSolutions compteur_;
};

void Verifier::Traite(std::string_view champ, Reponse& reponse) {
  if (auto erreur = lecteur_.Lit(champ)) {
    reponse.erreur = std::move(*erreur);
    return;
  }
  const int solutions = Compte();
  int evaluations = 0;
  std::int64_t retraits = 0;
  std::int64_t contradictions = 0;
  if (solutions == 1) {
    const bool justes = SaisiesJustes();
    Temoin temoin(compteur_.Solution(), justes);
    evaluations = Rejoue(temoin);
    lecteur_.Lit(champ);
    const bool resolue = !justes || ResoutJuste();
    lecteur_.Lit(champ);
    const bool menee = !justes || RouteJuste();
    retraits = temoin.Retraits();
    contradictions = temoin.Contradictions() + (resolue ? 0 : 1) + (menee ? 0 : 1);
    if (!resolue) {
      reponse.alerte = "le résultat n'est pas la solution";
    } else if (!menee) {
      reponse.alerte = "le chemin ne mène pas à la solution";
    } else if (contradictions > 0) {
      reponse.alerte = temoin.Premiere();
    }
  }
  reponse.sortie += champ;
  for (const std::int64_t n :
       {std::int64_t{solutions}, std::int64_t{evaluations}, retraits, contradictions}) {
    (reponse.sortie += '\t') += std::to_string(n);
  }
  reponse.sortie += '\n';
}

// Solutions of what is given or proved. Symbols that equal each other can't fill a unit.
int Verifier::Compte() {
  const Bloc& bloc = jeu_.VmGrille.Donnees();
  for (int p = 0; p < bloc.alphabet->Taille(); ++p) {
    if (bloc.alphabet->Premiere(p) != p) return 0;
  }
  std::vector<int> donnees(Rang(jeu_.VmGrille.Borne() + 1), -1);
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    if (bloc.etat[Rang(i)] == kDonnee || bloc.etat[Rang(i)] == kProuvee) donnees[Rang(i)] = PositionSaisie(i);
  }
  return compteur_.Compte(*bloc.geometrie, donnees);
}

int Verifier::PositionSaisie(int cellule) const {
  const Bloc& bloc = jeu_.VmGrille.Donnees();
  return bloc.alphabet->Position(bloc.saisie[Rang(cellule)]);
}

bool Verifier::SaisiesJustes() const {
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    const bool saisie = jeu_.VmGrille(i).Etat() == kPossible;
    if (saisie && PositionSaisie(i) != compteur_.Solution()[Rang(i)]) return false;
  }
  return true;
}

// Deduction as far as it goes, each evaluation examined. Result: their number.
int Verifier::Rejoue(Temoin& temoin) {
  jeu_.VgEtat = kJeu;
  for (int evaluations = 1;; ++evaluations) {
    const int verdict = evaluateur_.Evaluation(jeu_.VmGrille, 2);
    temoin.Examine(jeu_.VmGrille, verdict);
    if (verdict < 0 || !Remplis()) return evaluations;
  }
}

// Writes what is found into the cells, as the solver does: what is proved over anything, what rests on
// unproved entries into empty cells. False if there was nothing to write.
bool Verifier::Remplis() {
  const Bloc& bloc = jeu_.VmGrille.Donnees();
  bool ecrit = false;
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    const ClsPos cellule = jeu_.VmGrille(i);
    if (!cellule.SolutionSure().empty() && !bloc.alphabet->Egaux(bloc.saisie[Rang(i)], bloc.sure[Rang(i)])) {
      jeu_.VmGrille(i).Valeur(Texte(cellule.SolutionSure()));
    } else if (cellule.ValeurSaisie().empty() && !cellule.SolutionPoss().empty()) {
      jeu_.VmGrille(i).Valeur(Texte(cellule.SolutionPoss()));
    } else {
      continue;
    }
    ecrit = true;
  }
  return ecrit;
}

// The solver, suppositions and all, comes to the solution.
bool Verifier::ResoutJuste() {
  jeu_.VgEtat = kJeu;
  driver_.JeuAuto(true, true);
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    if (PositionSaisie(i) != compteur_.Solution()[Rang(i)]) return false;
  }
  return true;
}

// The road there, told: what rests on no supposition and what is refuted agree with the solution, and the
// levels left open lead to it.
bool Verifier::RouteJuste() {
  route_.Commence(jeu_.VmGrille, compteur_.Solution());
  jeu_.VgEtat = kJeu;
  conteur_.JeuAuto(true, true);
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    if (PositionSaisie(i) != compteur_.Solution()[Rang(i)]) return false;
  }
  return route_.Juste() && route_.Mene(jeu_.VmGrille);
}

}  // namespace

std::unique_ptr<Ouvrier> FabriqueVerifier(const Appel& appel) {
  return std::make_unique<Verifier>(appel);
}

}  // namespace sudoku::lot
