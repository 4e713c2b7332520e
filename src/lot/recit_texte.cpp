#include "engine/explications.h"
#include "lot/recit.h"
#include "lot/symboles.h"

namespace sudoku::lot {
namespace {

std::string Ou(const ClsPos& cellule) {
  return "case " + std::to_string(cellule.Index()) + " (ligne " + std::to_string(cellule.Ligne()) +
         ", colonne " + std::to_string(cellule.Colonne()) + ", carré " + std::to_string(cellule.Carre()) +
         ")";
}

// The road as a person reads it, with what rests on open suppositions set in by their number.
class RecitEnLignes : public Recit {
 public:
  void Commence(std::int64_t grille, const Grille& VmGrille, std::string_view champ,
                std::string& s) override {
    grille_ = VmGrille;
    (((s += "Grille ") += std::to_string(grille)) += " : ") += champ;
    s += '\n';
  }
  void Remplit(const Etape& etape, const Grille& grille, int verdict, std::span<const Remplissage> cases,
               std::string& s) override;
  void Reprend(const Etape& etape, std::string& s) override {
    s.append(2 * etape.niveau, ' ');
    s += "Reprenons avec ce qui est supposé\n";
  }
  void Suppose(const Etape& etape, int cellule, Code symbole, std::string& s) override {
    EcritTete(etape, s);
    (s += "supposons ") += Symbole(symbole);
    ((s += " dans la ") += Ou(grille_(cellule))) += '\n';
  }
  void Refute(const Etape& etape, int cellule, Code symbole, std::string& s) override {
    EcritTete(etape, s);
    (s += "impossible : ") += Symbole(symbole);
    ((s += " n'est pas dans la ") += Ou(grille_(cellule))) += '\n';
  }
  void Finit(std::int64_t grille, const Grille& VmGrille, const Bilan& bilan, std::string& s) override;

 private:
  const std::string& Symbole(Code code) { return symboles_.De(*grille_.Donnees().alphabet, code); }
  static void EcritTete(const Etape& etape, std::string& s) {
    s.append(2 * etape.niveau, ' ');
    ((s += "Étape ") += std::to_string(etape.etape)) += " : ";
  }

  Grille grille_;
  SymbolesUtf8 symboles_;
};

void RecitEnLignes::Remplit(const Etape& etape, const Grille& grille, int verdict,
                     std::span<const Remplissage> cases, std::string& s) {
  EcritTete(etape, s);
  s += std::to_string(cases.size()) + " case(s) sur " + std::to_string(verdict) + " à remplir\n";
  for (const Remplissage& r : cases) {
    s.append(2 * etape.niveau + 2, ' ');
    (s += Symbole(r.symbole)) += " dans la " + Ou(grille(r.Index));
    s += r.sure ? ", prouvé\n" : ", si ce qui est supposé est juste\n";
    const std::vector<Texte> phrases = Phrases(grille, r.Index);
    for (const Texte& phrase : phrases) {
      s.append(2 * etape.niveau + 4, ' ');
      (s += VersUtf8(phrase)) += '\n';
    }
    if (!phrases.empty()) continue;
    s.append(2 * etape.niveau + 4, ' ');
    s += "Seul symbole que la ligne, la colonne et le carré laissent\n";
  }
}

void RecitEnLignes::Finit(std::int64_t, const Grille& VmGrille, const Bilan& bilan, std::string& s) {
  const Bloc& bloc = VmGrille.Donnees();
  (s += bilan.message) += '\n';
  if (bilan.comptes.retours > 0) s += "Retours arrière : " + std::to_string(bilan.comptes.retours) + "\n";
  s += "Résultat : ";
  symboles_.Ecrit(*bloc.alphabet, std::span(bloc.saisie).subspan(1), s);
  s += "\n\n";
  grille_ = Grille();
}

}  // namespace

std::unique_ptr<Recit> FabriqueRecitTexte() {
  return std::make_unique<RecitEnLignes>();
}

}  // namespace sudoku::lot
