#include "lot/plateau_svg.h"

#include <utility>

#include "lot/html.h"

namespace sudoku::lot {
namespace {

// Lengths in units of the drawing; a board 60 cells wide takes the width of a page of paper at the most.
constexpr int kCote = 20;
constexpr int kLignePied = 15;  // from the top of a cell to the foot of its symbol

std::string Nombre(int n) {
  return std::to_string(n);
}

// Lines across the whole board, every `pas` cells.
void EcritLignes(int n, int pas, char classe, std::string& s) {
  ((s += "<path class=\"") += classe) += "\" d=\"";
  const std::string fin = Nombre(n * kCote);
  for (int i = 0; i <= n; i += pas) {
    const std::string lieu = Nombre(i * kCote);
    ((s += "M0 ") += lieu) += 'H';
    ((s += fin) += 'M') += lieu;
    (s += " 0V") += fin;
  }
  s += "\"/>";
}

}  // namespace

void PlateauSvg::Commence(const Grille& grille, std::string prefixe, std::string& s) {
  n_ = grille.N();
  geometrie_ = grille.Donnees().geometrie;
  alphabet_ = grille.Donnees().alphabet;
  prefixe_ = std::move(prefixe);
  basePrise_ = false;
  const Bloc& bloc = grille.Donnees();
  initiaux_.assign(Rang(n_ * n_ + 1), {});
  nouvelles_.assign(Rang(n_ * n_ + 1), 0);
  s += "<svg width=\"0\" height=\"0\" aria-hidden=\"true\"><defs><g id=\"" + prefixe_ + "-f\">";
  s += "<rect class=\"f\" width=\"" + Nombre(n_ * kCote) + "\" height=\"" + Nombre(n_ * kCote) + "\"/>";
  for (int i = 1; i <= n_ * n_; ++i) {
    if (bloc.saisie[Rang(i)] == kVide) continue;
    initiaux_[Rang(i)] = {bloc.saisie[Rang(i)], bloc.etat[Rang(i)] <= kProuvee};
    if (bloc.etat[Rang(i)] == kDonnee) EcritRectangle(i, 'd', 0, s);
  }
  EcritLignes(n_, 1, 'l', s);
  EcritLignes(n_, geometrie_->S(), 'g', s);
  contenus_ = initiaux_;
  const std::vector<Contenu> vides(initiaux_.size());
  EcritContenus(vides, s);
  s += "</g></defs></svg>\n";
}

void PlateauSvg::PrendBase(std::string& s) {
  s += "<svg width=\"0\" height=\"0\" aria-hidden=\"true\"><defs><g id=\"" + prefixe_ + "-b\"><use href=\"#" +
       prefixe_ + "-f\"/>";
  EcritContenus(initiaux_, s);
  s += "</g></defs></svg>\n";
  base_ = contenus_;
  basePrise_ = true;
}

void PlateauSvg::Dessine(std::string_view nom, std::span<const Remplissage> cases,
                         std::span<const UniteNommee> unites, std::span<const int> nommees, std::string& s) {
  const std::string cote = Nombre(n_ * kCote);
  // Large boards keep their size and scroll; a small one is not blown up.
  s += "<div class=\"cadre\" tabindex=\"0\" role=\"group\" aria-label=\"Plateau\"><svg viewBox=\"-1 -1 " +
       Nombre(n_ * kCote + 2) + " " + Nombre(n_ * kCote + 2) + "\" style=\"width:" + Nombre(n_ * 26 + 60) +
       "px;max-width:100%;min-width:" + Nombre(n_ * 18) + "px;--papier:" + Nombre(n_ * 7 < 60 ? 60 : n_ * 7) +
       "mm\" role=\"img\" aria-label=\"";
  ((s += nom) += Texte()) += "\"><use href=\"#" + prefixe_ + (basePrise_ ? "-b\"/>" : "-f\"/>");
  for (const Remplissage& r : cases) {
    nouvelles_[Rang(r.Index)] = 1;
    EcritRectangle(r.Index, r.sure ? 's' : 'q', 1, s);
  }
  EcritContenus(basePrise_ ? base_ : initiaux_, s);
  for (const Remplissage& r : cases) EcritSymbole(r.Index, " class=\"n\"", s);
  for (const Remplissage& r : cases) nouvelles_[Rang(r.Index)] = 0;
  for (const UniteNommee& unite : unites) Entoure(unite, s);
  for (const int cellule : nommees) EcritRectangle(cellule, 'c', 2, s);
  s += "</svg></div>\n";
}

// The board row by row, for who can't see it.
std::string PlateauSvg::Texte() {
  constexpr int kLisible = 36;
  if (n_ > kLisible) return "";
  std::string texte = " :";
  for (int i = 1; i <= n_ * n_; ++i) {
    if (Colonne(i) == 0) texte += i == 1 ? " " : " / ";
    texte += contenus_[Rang(i)].symbole == kVide ? "." : symboles_.De(*alphabet_, contenus_[Rang(i)].symbole);
  }
  return texte;
}

void PlateauSvg::EcritRectangle(int cellule, char classe, int marge, std::string& s) const {
  ((s += "<rect class=\"") += classe) += "\" x=\"" + Nombre(Colonne(cellule) * kCote + marge) + "\" y=\"" +
                                         Nombre(Ligne(cellule) * kCote + marge) + "\" width=\"" +
                                         Nombre(kCote - 2 * marge) + "\" height=\"" +
                                         Nombre(kCote - 2 * marge) + "\"/>";
}

void PlateauSvg::Entoure(const UniteNommee& unite, std::string& s) const {
  const auto cases = geometrie_->Serie(unite.type, unite.numero);
  const int premiere = cases.front();
  const int derniere = cases.back();
  s += "<rect class=\"u\" x=\"" + Nombre(Colonne(premiere) * kCote) + "\" y=\"" +
       Nombre(Ligne(premiere) * kCote) + "\" width=\"" +
       Nombre((Colonne(derniere) - Colonne(premiere) + 1) * kCote) + "\" height=\"" +
       Nombre((Ligne(derniere) - Ligne(premiere) + 1) * kCote) + "\"/>";
}

void PlateauSvg::EcritSymbole(int cellule, std::string_view attribut, std::string& s) {
  const std::string& symbole = symboles_.De(*alphabet_, contenus_[Rang(cellule)].symbole);
  ((s += "<text") += attribut) += " x=\"" + Nombre(Colonne(cellule) * kCote + kCote / 2) + "\" y=\"" +
                                  Nombre(Ligne(cellule) * kCote + kLignePied) + "\"";
  // A character that no page may hold is told by its number.
  if (symbole.starts_with("U+")) s += " textLength=\"18\" lengthAdjust=\"spacingAndGlyphs\"";
  ((s += '>') += symbole) += "</text>";
}

// What differs from `dessines`, which is drawn already, but for this step's cells.
void PlateauSvg::EcritContenus(const std::vector<Contenu>& dessines, std::string& s) {
  for (int i = 1; i <= n_ * n_; ++i) {
    const bool autre = contenus_[Rang(i)].symbole != dessines[Rang(i)].symbole;
    if (autre && dessines[Rang(i)].symbole != kVide && nouvelles_[Rang(i)] == 0) EcritRectangle(i, 'f', 1, s);
  }
  for (int ligne = 0; ligne < n_; ++ligne) {
    for (const bool sure : {true, false}) EcritRangee(dessines, ligne, sure, s);
  }
}

// One row of them, of one kind of proof: those of a single byte as one text with a place for each.
void PlateauSvg::EcritRangee(const std::vector<Contenu>& dessines, int ligne, bool sure, std::string& s) {
  const std::string_view attribut = sure ? "" : " class=\"p\"";
  std::string lieux;
  std::string octets;
  for (int i = ligne * n_ + 1; i <= (ligne + 1) * n_; ++i) {
    const Contenu& c = contenus_[Rang(i)];
    if (c.symbole == dessines[Rang(i)].symbole || c.sure != sure || nouvelles_[Rang(i)] != 0) continue;
    const std::string& symbole = symboles_.De(*alphabet_, c.symbole);
    if (symbole.size() > 1) {
      EcritSymbole(i, attribut, s);
      continue;
    }
    if (!lieux.empty()) lieux += ' ';
    lieux += Nombre(Colonne(i) * kCote + kCote / 2);
    octets += symbole;
  }
  if (octets.empty()) return;
  ((s += "<text") += attribut) += " x=\"" + lieux + "\" y=\"" + Nombre(ligne * kCote + kLignePied) + "\">";
  (s += octets) += "</text>";
}

}  // namespace sudoku::lot
