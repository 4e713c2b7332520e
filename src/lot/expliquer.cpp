#include "lot/expliquer.h"

#include <algorithm>
#include <bit>

#include "engine/evaluation.h"
#include "engine/explications.h"
#include "lot/grille.h"
#include "lot/json.h"
#include "lot/symboles.h"

namespace sudoku::lot {
namespace {

class Expliquer : public Ouvrier {
 public:
  explicit Expliquer(const Appel& appel)
      : passes_(appel.passes),
        texte_(appel.texte),
        lecteur_(jeu_, appel.symboles),
        symboles_(texte_ ? nullptr : Json) {}

  void Traite(std::string_view champ, Reponse& reponse) override {
    if (auto erreur = lecteur_.Lit(champ)) {
      reponse.erreur = std::move(*erreur);
      return;
    }
    jeu_.VgEtat = passes_ == 1 ? kSaisieGrille : kJeu;
    const int verdict = evaluateur_.Evaluation(jeu_.VmGrille, passes_);
    if (texte_) {
      EcritTexte(champ, verdict, reponse.sortie);
    } else {
      EcritJson(verdict, reponse.sortie);
    }
  }

 private:
  void EcritJson(int verdict, std::string& s);
  void EcritCaseJson(const Explicateur& explicateur, int cellule, std::string& s);
  void EcritTexte(std::string_view champ, int verdict, std::string& s);
  void EcritCaseTexte(const Explicateur& explicateur, int cellule, std::string& s);
  const std::string& Symbole(Code code) { return symboles_.De(*Donnees().alphabet, code); }
  void EcritPossible(int cellule, std::string_view separateur, std::string& s);
  const Bloc& Donnees() const { return jeu_.VmGrille.Donnees(); }

  int passes_;
  bool texte_;
  GameState jeu_;
  Evaluateur evaluateur_{jeu_};
  LecteurGrille lecteur_;
  SymbolesUtf8 symboles_;
};

void Expliquer::EcritPossible(int cellule, std::string_view separateur, std::string& s) {
  const Bloc& bloc = Donnees();
  if (bloc.possibleTexte[Rang(cellule)] != kVide) {
    s += Symbole(bloc.possibleTexte[Rang(cellule)]);
    return;
  }
  // Longer than any candidates of one cell, with what stands between them.
  const std::size_t debut = s.size();
  s.resize(debut + kTailleMax * (SymbolesUtf8::kCourt + separateur.size()));
  char* fin = s.data() + debut;
  const std::uint64_t* const mots = &bloc.candidats[Rang(cellule * bloc.mots)];
  for (int m = 0; m < bloc.mots; ++m) {
    for (std::uint64_t mot = mots[m]; mot != 0; mot &= mot - 1) {
      if (fin != s.data() + debut) fin = std::ranges::copy(separateur, fin).out;
      fin = symboles_.Pose(*bloc.alphabet, 64 * m + std::countr_zero(mot), fin);
    }
  }
  s.resize(static_cast<std::size_t>(fin - s.data()));
}

void Expliquer::EcritJson(int verdict, std::string& s) {
  s +=
      "{\"verdict\":" + std::to_string(verdict) + ",\"mode\":" + std::to_string(jeu_.VgEtat) + ",\"cases\":[";
  const Explicateur explicateur(jeu_.VmGrille);
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    if (i > 1) s += ',';
    EcritCaseJson(explicateur, i, s);
  }
  s += "]}\n";
}

void Expliquer::EcritCaseJson(const Explicateur& explicateur, int cellule, std::string& s) {
  const Bloc& bloc = Donnees();
  (s += "{\"index\":") += std::to_string(cellule);
  (s += ",\"valeur\":\"") += Symbole(bloc.saisie[Rang(cellule)]);
  (s += "\",\"etat\":") += std::to_string(bloc.etat[Rang(cellule)]);
  s += ",\"possible\":\"";
  EcritPossible(cellule, "", s);
  (s += "\",\"sure\":\"") += Symbole(bloc.sure[Rang(cellule)]);
  (s += "\",\"poss\":\"") += Symbole(bloc.poss[Rang(cellule)]);
  s += "\",\"explications\":[";
  for (const Texte& phrase : explicateur.Phrases(cellule)) {
    if (s.back() != '[') s += ',';
    ((s += '"') += Json(VersUtf8(phrase))) += '"';
  }
  s += "]}";
}

std::string Verdict(int verdict) {
  if (verdict < 0) return "contradiction : une case n'a plus de candidat";
  if (verdict == 0) return "grille complète";
  return std::to_string(verdict) + " case(s) à remplir";
}

void Expliquer::EcritTexte(std::string_view champ, int verdict, std::string& s) {
  ((s += "Grille ") += champ) += '\n';
  s += Verdict(verdict) + " (verdict " + std::to_string(verdict) + ", mode " + std::to_string(jeu_.VgEtat) +
       ")\n";
  const Explicateur explicateur(jeu_.VmGrille);
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) EcritCaseTexte(explicateur, i, s);
  s += '\n';
}

void Expliquer::EcritCaseTexte(const Explicateur& explicateur, int cellule, std::string& s) {
  const Bloc& bloc = Donnees();
  const ClsPos position = jeu_.VmGrille(cellule);
  const auto champ = [&](const char* nom, const std::string& valeur) {
    if (!valeur.empty()) ((s += ", ") += nom) += valeur;
  };
  s += "Case " + std::to_string(cellule) + " (ligne " + std::to_string(position.Ligne()) + ", colonne " +
       std::to_string(position.Colonne()) + ", carré " + std::to_string(position.Carre()) + ") : ";
  s += bloc.saisie[Rang(cellule)] == kVide ? "vide" : Symbole(bloc.saisie[Rang(cellule)]);
  champ("état ", std::to_string(bloc.etat[Rang(cellule)]));
  s += ", possible ";
  EcritPossible(cellule, "-", s);
  champ("sûr ", Symbole(bloc.sure[Rang(cellule)]));
  champ("sûr si les saisies sont justes ", Symbole(bloc.poss[Rang(cellule)]));
  s += '\n';
  for (const Texte& phrase : explicateur.Phrases(cellule)) ((s += "    ") += VersUtf8(phrase)) += '\n';
}

}  // namespace

std::unique_ptr<Ouvrier> FabriqueExpliquer(const Appel& appel) {
  return std::make_unique<Expliquer>(appel);
}

}  // namespace sudoku::lot
