#include "lot/expliquer.h"

#include "engine/evaluation.h"
#include "engine/explications.h"
#include "lot/grille.h"
#include "lot/json.h"
#include "lot/symboles.h"

namespace sudoku::lot {
namespace {

std::size_t At(int i) {
  return static_cast<std::size_t>(i);
}

class Expliquer : public Ouvrier {
 public:
  explicit Expliquer(const Appel& appel)
      : passes_(appel.passes),
        texte_(appel.texte),
        lecteur_(jeu_, appel.symboles),
        symboles_(texte_ ? nullptr : Json) {}

  void Traite(std::string_view champ, Reponse& reponse) override {
    if (auto erreur = lecteur_.Lis(champ)) {
      reponse.erreur = std::move(*erreur);
      return;
    }
    jeu_.VgEtat = passes_ == 1 ? kSaisieGrille : kJeu;
    const int verdict = moteur_.Evaluation(jeu_.VmGrille, passes_);
    if (texte_) {
      EcrisTexte(champ, verdict, reponse.sortie);
    } else {
      EcrisJson(verdict, reponse.sortie);
    }
  }

 private:
  void EcrisJson(int verdict, std::string& s);
  void EcrisCaseJson(int cellule, std::string& s);
  void EcrisTexte(std::string_view champ, int verdict, std::string& s);
  void EcrisCaseTexte(int cellule, std::string& s);
  const std::string& Symbole(Code code) { return symboles_.De(*Donnees().alphabet, code); }
  void Possible(int cellule, std::string_view separateur, std::string& s);
  const Bloc& Donnees() const { return jeu_.VmGrille.Donnees(); }

  int passes_;
  bool texte_;
  GameState jeu_;
  Evaluateur moteur_{jeu_};
  LecteurGrille lecteur_;
  SymbolesUtf8 symboles_;
};

void Expliquer::Possible(int cellule, std::string_view separateur, std::string& s) {
  const Bloc& bloc = Donnees();
  if (bloc.possibleTexte[At(cellule)] != kVide) {
    s += Symbole(bloc.possibleTexte[At(cellule)]);
    return;
  }
  const std::size_t debut = s.size();
  for (int p = 0; p < bloc.alphabet->Taille(); ++p) {
    if (!bloc.Candidat(cellule, p)) continue;
    if (s.size() != debut) s += separateur;
    s += Symbole(p);
  }
}

void Expliquer::EcrisJson(int verdict, std::string& s) {
  s +=
      "{\"verdict\":" + std::to_string(verdict) + ",\"mode\":" + std::to_string(jeu_.VgEtat) + ",\"cases\":[";
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) {
    if (i > 1) s += ',';
    EcrisCaseJson(i, s);
  }
  s += "]}\n";
}

void Expliquer::EcrisCaseJson(int cellule, std::string& s) {
  const Bloc& bloc = Donnees();
  (s += "{\"index\":") += std::to_string(cellule);
  (s += ",\"valeur\":\"") += Symbole(bloc.saisie[At(cellule)]);
  (s += "\",\"etat\":") += std::to_string(bloc.etat[At(cellule)]);
  s += ",\"possible\":\"";
  Possible(cellule, "", s);
  (s += "\",\"sure\":\"") += Symbole(bloc.sure[At(cellule)]);
  (s += "\",\"poss\":\"") += Symbole(bloc.poss[At(cellule)]);
  s += "\",\"explications\":[";
  for (const Texte& phrase : Phrases(jeu_.VmGrille, cellule)) {
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

void Expliquer::EcrisTexte(std::string_view champ, int verdict, std::string& s) {
  ((s += "Grille ") += champ) += '\n';
  s += Verdict(verdict) + " (verdict " + std::to_string(verdict) + ", mode " + std::to_string(jeu_.VgEtat) +
       ")\n";
  for (int i = 1; i <= jeu_.VmGrille.Borne(); ++i) EcrisCaseTexte(i, s);
  s += '\n';
}

void Expliquer::EcrisCaseTexte(int cellule, std::string& s) {
  const Bloc& bloc = Donnees();
  const ClsPos position = jeu_.VmGrille(cellule);
  const auto champ = [&](const char* nom, const std::string& valeur) {
    if (!valeur.empty()) ((s += ", ") += nom) += valeur;
  };
  s += "Case " + std::to_string(cellule) + " (ligne " + std::to_string(position.Ligne()) + ", colonne " +
       std::to_string(position.Colonne()) + ", carré " + std::to_string(position.Carre()) + ") : ";
  s += bloc.saisie[At(cellule)] == kVide ? "vide" : Symbole(bloc.saisie[At(cellule)]);
  champ("état ", std::to_string(bloc.etat[At(cellule)]));
  s += ", possible ";
  Possible(cellule, "-", s);
  champ("sûr ", Symbole(bloc.sure[At(cellule)]));
  champ("sûr si les saisies sont justes ", Symbole(bloc.poss[At(cellule)]));
  s += '\n';
  for (const Texte& phrase : Phrases(jeu_.VmGrille, cellule)) ((s += "    ") += VersUtf8(phrase)) += '\n';
}

}  // namespace

std::unique_ptr<Ouvrier> FaisExpliquer(const Appel& appel) {
  return std::make_unique<Expliquer>(appel);
}

}  // namespace sudoku::lot
