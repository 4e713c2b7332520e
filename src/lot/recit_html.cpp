#include <algorithm>
#include <utility>
#include <vector>

#include "engine/explications.h"
#include "lot/html.h"
#include "lot/plateau_svg.h"
#include "lot/recit.h"

namespace sudoku::lot {
namespace {

// Of one grid, what refuted suppositions may take of the page; those beyond are told in one line only.
constexpr std::size_t kRepliesMax = 3'500'000;
constexpr std::int64_t kRouteLongue = 10;  // steps from which there is a table of contents
constexpr std::size_t kPhrasesEntourees = 3;

// A page. A refuted branch is folded into one line, and so is what is found again after a return to the base:
// so that a level is kept until it is known how it ends.
class RecitEnPage : public Recit {
 public:
  void Commence(std::int64_t grille, const Grille& VmGrille, std::string_view champ, std::string& s) override;
  void Remplit(const Etape& etape, const Grille& grille, int verdict, std::span<const Remplissage> cases,
               std::string& s) override;
  void Reprend(const Etape& etape, std::string& s) override;
  void Suppose(const Etape& etape, int cellule, Code symbole, std::string& s) override;
  void Refute(const Etape& etape, int cellule, Code symbole, std::string& s) override;
  void Finit(std::int64_t grille, const Grille& VmGrille, const Bilan& bilan, std::string& s) override;

 private:
  struct Niveau {
    std::string corps;
    std::string sommaire;
    std::int64_t premiere = 0;  // step
    Remplissage supposition{};
    std::size_t repliees = 0;  // bytes of corps that are refuted branches
  };
  const std::string& Symbole(Code code) { return symboles_.De(*depart_.Donnees().alphabet, code); }
  std::string& Corps() { return niveaux_.back().corps; }
  std::string Id(std::int64_t etape) const {
    return "g" + std::to_string(grille_) + "-e" + std::to_string(etape);
  }
  std::string Ou(int cellule) const;
  void Ancre(const Etape& etape, const std::string& titre);
  void EcritRaisons(const Grille& grille, std::span<const Remplissage> cases);
  void FermeReprise();
  void FermeBranche();
  void EcritPlateauFinal(const Grille& VmGrille, std::string& s);

  std::int64_t grille_ = 0;
  std::int64_t etapes_ = 0;
  Grille depart_;
  PlateauSvg plateau_;
  std::vector<Niveau> niveaux_;  // 0: what stands without suppositions
  std::size_t repliees_ = 0;
  bool aReprendre_ = false;  // the board is the base again, and nothing has followed yet
  bool reprise_ = false;     // what follows is folded
  std::vector<UniteNommee> unites_;
  std::vector<int> nommees_;
  SymbolesUtf8 symboles_{Html};
};

std::string RecitEnPage::Ou(int cellule) const {
  const ClsPos position = depart_(cellule);
  return "case " + std::to_string(cellule) + " (ligne " + std::to_string(position.Ligne()) + ", colonne " +
         std::to_string(position.Colonne()) + ")";
}

void RecitEnPage::Commence(std::int64_t grille, const Grille& VmGrille, std::string_view, std::string&) {
  grille_ = grille;
  etapes_ = 0;
  depart_ = VmGrille;
  repliees_ = 0;
  aReprendre_ = reprise_ = false;
  niveaux_.assign(1, {});
  const std::string prefixe = "g" + std::to_string(grille);
  std::string& corps = Corps();
  plateau_.Commence(VmGrille, prefixe, corps);
  corps += "<article class=\"etape\">\n<h3>Au départ</h3>\n";
  plateau_.Dessine("La grille au départ", {}, {}, {}, corps);
  corps += "</article>\n";
}

// The head of a step: its heading, which can be linked to, and its line in the table of contents.
void RecitEnPage::Ancre(const Etape& etape, const std::string& titre) {
  etapes_ = etape.etape;
  const std::string id = Id(etape.etape);
  const std::string numero = "Étape " + std::to_string(etape.etape);
  Corps() += "<article class=\"etape\" id=\"" + id + "\">\n<h3>" + numero + " : " + titre +
             " <a class=\"lien\" href=\"#" + id + "\" aria-label=\"Lien vers l'étape " +
             std::to_string(etape.etape) + "\">#</a></h3>\n";
  if (!reprise_) {
    niveaux_.back().sommaire += "<li><a href=\"#" + id + "\">" + numero + "</a> : " + titre + "</li>\n";
  }
}

void RecitEnPage::Remplit(const Etape& etape, const Grille& grille, int verdict, std::span<const Remplissage> cases,
                   std::string&) {
  if (std::exchange(aReprendre_, false)) {
    reprise_ = true;
    Corps() +=
        "<details class=\"repli\"><summary>Retour à la base avec ce qui est supposé : les conséquences, "
        "retrouvées</summary>\n";
  }
  const std::string nombre = std::to_string(cases.size());
  Ancre(etape, cases.size() == 1
                   ? Symbole(cases[0].symbole) + " dans la case " + std::to_string(cases[0].Index)
                   : nombre + " cases sur " + std::to_string(verdict) + " à remplir");
  for (const Remplissage& r : cases) plateau_.Pose(r.Index, r.symbole, r.sure);
  unites_.clear();
  nommees_.clear();
  if (cases.size() == 1 && Phrases(grille, cases[0].Index).size() <= kPhrasesEntourees) {
    Nomme(grille, cases[0].Index, unites_, nommees_);
  }
  plateau_.Dessine("Étape " + std::to_string(etape.etape), cases, unites_, nommees_, Corps());
  EcritRaisons(grille, cases);
}

void RecitEnPage::EcritRaisons(const Grille& grille, std::span<const Remplissage> cases) {
  std::string& s = Corps();
  s += "<ul>\n";
  for (const Remplissage& r : cases) {
    s += "<li><b>" + Symbole(r.symbole) + "</b> dans la " + Ou(r.Index);
    s += r.sure ? ", prouvé\n<ul>" : ", si ce qui est supposé est juste\n<ul>";
    const std::vector<Texte> phrases = Phrases(grille, r.Index);
    for (const Texte& phrase : phrases) s += "<li>" + Html(VersUtf8(phrase)) + "</li>\n";
    if (phrases.empty()) s += "<li>Seul symbole que la ligne, la colonne et le carré laissent</li>";
    s += "</ul></li>\n";
  }
  s += "</ul>\n</article>\n";
}

void RecitEnPage::Reprend(const Etape&, std::string&) {
  plateau_.Reprend();
  for (const Niveau& niveau : niveaux_) {
    const Remplissage& r = niveau.supposition;
    if (r.Index != 0) plateau_.Pose(r.Index, r.symbole, false);
  }
  aReprendre_ = true;
}

void RecitEnPage::FermeReprise() {
  if (std::exchange(reprise_, false)) Corps() += "</details>\n";
  aReprendre_ = false;
}

void RecitEnPage::Suppose(const Etape& etape, int cellule, Code symbole, std::string&) {
  FermeReprise();
  if (!plateau_.BasePrise()) plateau_.PrendBase(niveaux_.front().corps);
  niveaux_.emplace_back();
  niveaux_.back().premiere = etape.etape;
  niveaux_.back().supposition = {static_cast<std::int16_t>(cellule), symbole, false};
  Ancre(etape, "supposons " + Symbole(symbole) + " dans la " + Ou(cellule) + ", niveau " +
                   std::to_string(etape.niveau));
  plateau_.Pose(cellule, symbole, false);
  const std::span<const Remplissage> posee(&niveaux_.back().supposition, 1);
  plateau_.Dessine("Supposition de l'étape " + std::to_string(etape.etape), posee, {}, {}, Corps());
  Corps() += "</article>\n";
}

void RecitEnPage::Refute(const Etape& etape, int cellule, Code symbole, std::string&) {
  FermeReprise();
  etapes_ = etape.etape;
  const Niveau refute = std::move(niveaux_.back());
  niveaux_.pop_back();
  const std::string titre = "Étape " + std::to_string(etape.etape) + " : " + Symbole(symbole) + " dans la " +
                            Ou(cellule) + " est réfuté";
  const std::string etapes = " (supposé à l'étape " + std::to_string(refute.premiere) + ")";
  const std::string id = Id(etape.etape);
  niveaux_.back().sommaire += "<li><a href=\"#" + id + "\">" + titre + "</a></li>\n";
  repliees_ -= refute.repliees;
  if (repliees_ + refute.corps.size() > kRepliesMax) {
    Corps() += "<p id=\"" + id + "\">" + titre + etapes + ". Ses étapes ne sont pas dessinées ici.</p>\n";
    return;
  }
  repliees_ += refute.corps.size();
  niveaux_.back().repliees += refute.corps.size();
  Corps() += "<details class=\"repli\" id=\"" + id + "\"><summary>" + titre + etapes + "</summary>\n" +
             refute.corps + "</details>\n";
}

// The last level stands: it goes to the one below.
void RecitEnPage::FermeBranche() {
  const Niveau branche = std::move(niveaux_.back());
  niveaux_.pop_back();
  Corps() += "<div class=\"branche\">\n" + branche.corps + "</div>\n";
  niveaux_.back().sommaire += branche.sommaire;
}

void RecitEnPage::Finit(std::int64_t grille, const Grille& VmGrille, const Bilan& bilan, std::string& s) {
  FermeReprise();
  while (niveaux_.size() > 1) FermeBranche();
  const std::string numero = std::to_string(grille);
  const std::string id = "g" + numero;
  s += "<section id=\"" + id + "\">\n<h2>Grille " + numero + "</h2>\n<p class=\"fin\">" +
       Html(bilan.message) + ", en " + std::to_string(etapes_) + " étape(s).";
  s += " <a class=\"lien\" href=\"#" + id + "-fin\">Le résultat</a></p>\n";
  if (etapes_ >= kRouteLongue) {
    s += "<details class=\"sommaire\"><summary>Sommaire</summary>\n<ol>\n" + niveaux_.front().sommaire +
         "</ol></details>\n";
  }
  s += niveaux_.front().corps;
  s += "<article class=\"etape\" id=\"" + id + "-fin\">\n<h3>" + Html(bilan.message) + "</h3>\n";
  EcritPlateauFinal(VmGrille, s);
  s += "</article>\n</section>\n";
  niveaux_.clear();
  depart_ = Grille();
}

// The result, also where it is the last refuted attempt.
void RecitEnPage::EcritPlateauFinal(const Grille& VmGrille, std::string& s) {
  const Bloc& bloc = VmGrille.Donnees();
  for (int i = 1; i <= VmGrille.Borne(); ++i) {
    const auto cellule = static_cast<std::size_t>(i);
    plateau_.Pose(i, bloc.saisie[cellule], bloc.etat[cellule] <= kProuvee);
  }
  plateau_.Dessine("Le résultat", {}, {}, {}, s);
}

}  // namespace

std::unique_ptr<Recit> FabriqueRecitHtml() {
  return std::make_unique<RecitEnPage>();
}

}  // namespace sudoku::lot
