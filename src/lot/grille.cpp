#include "lot/grille.h"

#include <cstdio>

namespace sudoku::lot {
namespace {

// A character as a message can show it.
std::string Montre(char32_t c) {
  if (c > U' ' && (c < 0x7F || c > 0xA0)) return "« " + VersUtf8(TexteVue(&c, 1)) + " »";
  if (c == U' ') return "une espace";
  char code[16];
  std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(c));
  return std::string("le caractère ") + code;
}

// A blank may hold a cell that was erased, but no verdict on an entry.
bool EtatAdmis(char32_t etat, bool vide) {
  return etat >= U'0' && etat <= (vide ? U'1' : U'3');
}

// The first character that isn't well-formed.
std::string MalForme(std::string_view champ) {
  std::size_t rang = 1;
  for (std::size_t i = 0; i < champ.size(); ++rang) {
    std::size_t longueur = 1;
    while (longueur <= 4 && !DepuisUtf8Strict(champ.substr(i, longueur))) ++longueur;
    if (longueur > 4) {
      char octet[8];
      std::snprintf(octet, sizeof octet, "0x%02X", static_cast<unsigned char>(champ[i]));
      return std::string("octet ") + octet + " derrière le caractère " + std::to_string(rang - 1) +
             " : la ligne n'est pas de l'UTF-8";
    }
    i += longueur;
  }
  return {};
}

}  // namespace

LecteurGrille::LecteurGrille(GameState& jeu, TexteVue symboles)
    : jeu_(jeu), cases_(symboles.size() * symboles.size()) {
  jeu.VmValeurs = symboles;
  jeu.VmTaille = static_cast<std::int16_t>(symboles.size());
  jeu.VmGrille = Grille::Nouvelle(jeu, symboles);
  for (char32_t c = 0; c < seul_.size(); ++c) {
    seul_[c] = CodeDuSymbole(c);
    if (seul_[c] == kFaux && (c == U'.' || c == U'0' || c == U' ')) seul_[c] = kVide;
    avecEtat_[c] = c == U' ' ? kVide : CodeDuSymbole(c);
  }
}

std::optional<std::string> LecteurGrille::Lit(std::string_view champ) {
  if (LitOctets(champ)) return std::nullopt;
  // Of so many bytes the characters needn't be counted, and the field may not be here to its end.
  if (champ.size() > cases_ * 2 * 4) return "plus de " + std::to_string(cases_ * 2) + Longueurs();
  const std::optional<Texte> texte = DepuisUtf8Strict(champ);
  if (!texte) return MalForme(champ);
  return LitTexte(*texte);
}

// The usual line, all ASCII and right. False: anything else.
bool LecteurGrille::LitOctets(std::string_view champ) {
  Bloc& bloc = jeu_.VmGrille.Donnees();
  bool juste = true;
  const auto sens = [](const Sens& table, char c) {
    const auto octet = static_cast<unsigned char>(c);
    return octet < table.size() ? table[octet] : kFaux;
  };
  if (champ.size() == cases_) {
    for (std::size_t i = 0; i < cases_; ++i) {
      const Code code = sens(seul_, champ[i]);
      juste &= code != kFaux;
      bloc.saisie[i + 1] = code;
      bloc.etat[i + 1] = kDonnee;
    }
    return juste;
  }
  if (champ.size() != 2 * cases_) return false;
  for (std::size_t i = 0; i < cases_; ++i) {
    const Code code = sens(avecEtat_, champ[2 * i]);
    const auto etat = static_cast<char32_t>(static_cast<unsigned char>(champ[2 * i + 1]));
    juste &= code != kFaux && EtatAdmis(etat, code == kVide);
    bloc.saisie[i + 1] = code;
    bloc.etat[i + 1] = static_cast<std::int32_t>(etat - U'0');
  }
  return juste;
}

std::optional<std::string> LecteurGrille::LitTexte(TexteVue texte) {
  if (texte.size() != cases_ && texte.size() != 2 * cases_) return std::to_string(texte.size()) + Longueurs();
  Bloc& bloc = jeu_.VmGrille.Donnees();
  const std::size_t pas = texte.size() / cases_;
  const bool avecEtats = pas == 2;
  for (std::size_t i = 0; i < texte.size(); i += pas) {
    const std::size_t cellule = i / pas + 1;
    const auto ou = [&] { return " dans la case " + std::to_string(cellule) + " ; attendu : "; };
    const Code code = SensDe(texte[i], avecEtats);
    if (code == kFaux) return Montre(texte[i]) + ou() + Attendu(avecEtats);
    bloc.saisie[cellule] = code;
    bloc.etat[cellule] = kDonnee;
    if (!avecEtats) continue;
    const char32_t etat = texte[i + 1];
    if (!EtatAdmis(etat, code == kVide)) {
      return Montre(etat) + " pour état" + ou() +
             (code == kVide ? "0 ou 1 pour une case vide" : "0, 1, 2 ou 3");
    }
    bloc.etat[cellule] = static_cast<std::int32_t>(etat - U'0');
  }
  return std::nullopt;
}

Code LecteurGrille::SensDe(char32_t c, bool avecEtats) {
  if (c < seul_.size()) return avecEtats ? avecEtat_[c] : seul_[c];
  const auto [lieu, nouveau] = codes_.try_emplace(c, kFaux);
  if (nouveau) lieu->second = CodeDuSymbole(c);
  return lieu->second;
}

Code LecteurGrille::CodeDuSymbole(char32_t c) {
  const TexteVue symbole(&c, 1);
  return Contient(jeu_.VmValeurs, symbole) ? jeu_.VmGrille.Donnees().alphabet->Numero(symbole) : kFaux;
}

std::string LecteurGrille::Attendu(bool avecEtats) const {
  const Texte& symboles = jeu_.VmValeurs;
  std::string vides;
  for (const char32_t c : {U'.', U'0'}) {
    if (!avecEtats && !Contient(symboles, TexteVue(&c, 1))) vides += Montre(c) + ", ";
  }
  return "un des symboles « " + VersUtf8(symboles) + " », ou " + vides + "une espace pour une case vide";
}

std::string LecteurGrille::Longueurs() const {
  return " caractère(s) ; il en faut " + std::to_string(cases_) + ", un par case, ou " +
         std::to_string(2 * cases_) + ", la valeur et l'état de chaque case";
}

}  // namespace sudoku::lot
