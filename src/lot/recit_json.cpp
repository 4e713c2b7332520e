#include "engine/explications.h"
#include "lot/json.h"
#include "lot/recit.h"
#include "lot/symboles.h"

namespace sudoku::lot {
namespace {

// An object a line, for each step and for the end; see the manual.
class RecitEnObjets : public Recit {
 public:
  void Commence(std::int64_t, const Grille& VmGrille, std::string_view, std::string&) override {
    alphabet_ = VmGrille.Donnees().alphabet;
  }
  void Remplit(const Etape& etape, const Grille& grille, int verdict, std::span<const Remplissage> cases,
               std::string& s) override;
  void Reprend(const Etape&, std::string&) override {}
  void Suppose(const Etape& etape, int cellule, Code symbole, std::string& s) override {
    EcritSupposition(etape, "supposition", cellule, symbole, s);
  }
  void Refute(const Etape& etape, int cellule, Code symbole, std::string& s) override {
    EcritSupposition(etape, "refutation", cellule, symbole, s);
  }
  void Finit(std::int64_t grille, const Grille& VmGrille, const Bilan& bilan, std::string& s) override;

 private:
  static void EcritTete(const Etape& etape, std::string& s);
  void EcritSupposition(const Etape& etape, std::string_view genre, int cellule, Code symbole,
                        std::string& s);
  void EcritLieu(int cellule, Code symbole, std::string& s);

  std::shared_ptr<const Alphabet> alphabet_;
  SymbolesUtf8 symboles_{Json};
};

void RecitEnObjets::EcritTete(const Etape& etape, std::string& s) {
  (s += "{\"grille\":") += std::to_string(etape.grille);
  (s += ",\"etape\":") += std::to_string(etape.etape);
  (s += ",\"niveau\":") += std::to_string(etape.niveau);
}

void RecitEnObjets::EcritLieu(int cellule, Code symbole, std::string& s) {
  (s += "{\"index\":") += std::to_string(cellule);
  ((s += ",\"valeur\":\"") += symboles_.De(*alphabet_, symbole)) += '"';
}

void RecitEnObjets::Remplit(const Etape& etape, const Grille& grille, int verdict,
                     std::span<const Remplissage> cases, std::string& s) {
  EcritTete(etape, s);
  ((s += ",\"verdict\":") += std::to_string(verdict)) += ",\"cases\":[";
  for (const Remplissage& r : cases) {
    if (s.back() != '[') s += ',';
    EcritLieu(r.Index, r.symbole, s);
    s += r.sure ? ",\"preuve\":\"sure\",\"explications\":[" : ",\"preuve\":\"poss\",\"explications\":[";
    for (const Texte& phrase : Phrases(grille, r.Index)) {
      if (s.back() != '[') s += ',';
      ((s += '"') += Json(VersUtf8(phrase))) += '"';
    }
    s += "]}";
  }
  s += "]}\n";
}

void RecitEnObjets::EcritSupposition(const Etape& etape, std::string_view genre, int cellule, Code symbole,
                              std::string& s) {
  EcritTete(etape, s);
  ((s += ",\"") += genre) += "\":";
  EcritLieu(cellule, symbole, s);
  s += "}}\n";
}

void RecitEnObjets::Finit(std::int64_t grille, const Grille& VmGrille, const Bilan& bilan, std::string& s) {
  (s += "{\"grille\":") += std::to_string(grille);
  (s += ",\"fin\":\"") += bilan.message;
  s += "\",\"resultat\":\"";
  symboles_.Ecrit(*alphabet_, std::span(VmGrille.Donnees().saisie).subspan(1), s);
  (s += "\",\"suppositions\":") += std::to_string(bilan.comptes.faites);
  (s += ",\"refutations\":") += std::to_string(bilan.comptes.refutees);
  ((s += ",\"retours\":") += std::to_string(bilan.comptes.retours)) += "}\n";
}

}  // namespace

std::unique_ptr<Recit> FabriqueRecitJson() {
  return std::make_unique<RecitEnObjets>();
}

}  // namespace sudoku::lot
