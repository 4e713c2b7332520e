#include "partie.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "cible.h"

namespace sudoku::fuzz {
namespace {

// Sides 1 to 16, letters of both cases, repeated symbols, the signs that files and sessions give a meaning,
// and strings that make no grid.
constexpr TexteVue kSymboles[] = {
    U"1234", U"1234",         U"aBcd",   U"123456789", U"5",    U"aBcd",      U"aAbB",
    U"12-4", U". 0#",         U"1é\"\\", U"1111",      U"ΣσςŸ", U"123456780", U"0123456789ABCDEF",
    U"12",   U"★🙂ß\x1F"};
constexpr TexteVue kTextes[] = {U"1",    U"12",    U"a",          U"",        U"x",   U"34",   U"é",
                                U"-",    U" ",     U"\x7F",       U"\"",      U"\\",  U"\x1F", U"\x80€",
                                U"🙂", U"Marie", U"une-partie", U"Échec ★", U"\r\n"};

// What ends the program, and blanks as contents: a file has them for empty cells.
bool Ecourte(const std::string& ligne) {
  return ligne == "click MnuQuit" || ligne == "close FRMSudoku" || ligne.find("\" ") != std::string::npos ||
         ligne.find(". 0#") != std::string::npos;
}

std::string Guillemets(TexteVue texte) {
  return VersUtf8(Cite(texte));
}

}  // namespace

Partie::Partie(Octets& octets, FichiersMemoire& fichiers, std::string depart, bool etatsDuJeu)
    : octets_(octets),
      fichiers_(fichiers),
      depart_(std::move(depart)),
      invariants_(session_.LeProgramme(), etatsDuJeu) {
  entree_.exceptions(std::ios::badbit);  // lets the end of the program pass
}

void Partie::Longue(int commandes) {
  restantes_ = commandes;
  longue_ = true;
}

Partie::int_type Partie::underflow() {
  avant(restantes_);
  const Boite* const boite = session_.LeSysteme().Dessus();
  if (boite == nullptr) Verifie();
  if (restantes_-- == 0) throw FinDuProgramme();
  if (!depart_.empty()) {
    ligne_ = std::exchange(depart_, "");
  } else if (!octets_.Epuise()) {
    ligne_ = Commande();
    if (longue_ && Ecourte(ligne_)) ligne_ = "click MnuStart";
  } else if (boite != nullptr && boite->genre == GenreBoite::kMessage) {
    ligne_ = "answer ok";  // the solver may have more of them
  } else {
    return traits_type::eof();
  }
  ligne_ += '\n';
  setg(ligne_.data(), ligne_.data(), ligne_.data() + ligne_.size());
  return traits_type::to_int_type(ligne_.front());
}

void Partie::Verifie() {
  constexpr std::streamoff kAssez = 20'000;  // of a long game, the end will do
  VerifieFichier();
  if (const std::string rompu = invariants_.Rompu(); !rompu.empty()) Echoue(sortie_.str() + rompu);
  if (sortie_.tellp() > kAssez) sortie_.str("");
  const std::int32_t etat = std::exchange(etatAvant_, Jeu().VgEtat);
  if (Jeu().VgEtat == kTermine && etat != kTermine) ++fins;
}

// After a save that went through, another program loads the file, taking the grid without a game.
void Partie::VerifieFichier() {
  const auto nom = fichiers_.PrendSauve();
  if (!nom) return;
  ++relectures;
  FichiersMemoire fichiers = fichiers_;
  fichiers.Panne(0);
  std::ostringstream sortie;
  SystemeSansEcran systeme(sortie, fichiers, [] { return false; });
  Programme relu(systeme);
  relu.Demarre(U"\"" + *nom + U"\"");
  const std::string difference = Difference(relu);
  if (!difference.empty()) Echoue(sortie_.str() + "le fichier sauvé ne se relit pas : " + difference);
}

std::string Partie::Difference(Programme& relu) {
  const GameState& ici = Jeu();
  const GameState& la = relu.Jeu();
  if (la.VmGrille.Symboles() != ici.VmGrille.Symboles()) return "symboles";
  const auto memePartie = [](const ClsPartie& a, const ClsPartie& b) {
    return a.Nom == b.Nom && a.Grille == b.Grille;
  };
  const auto memeScore = [](const TypScore& a, const TypScore& b) {
    return a.Nom == b.Nom && std::abs(a.Temps - std::max(b.Temps, 0.0)) < 0.6 / 86400;
  };
  if (!std::ranges::equal(la.VgParties, ici.VgParties, memePartie)) return "parties";
  if (!std::ranges::equal(la.VgScores, ici.VgScores, memeScore)) return "scores";
  for (int i = 1; i <= la.VmGrille.Borne(); ++i) {
    const ClsPos cellule = ici.VmGrille(i);
    Texte donnee = cellule.Etat() == kDonnee ? cellule.ValeurSaisie().substr(0, 1) : Texte();
    if (donnee == U" ") donnee.clear();  // in a file, a blank is an empty cell
    if (la.VmGrille(i).ValeurSaisie() != donnee || la.VmGrille(i).Etat() != kDonnee) return "données";
  }
  return {};
}

std::string Partie::Commande() {
  const Boite* const boite = session_.LeSysteme().Dessus();
  if (boite != nullptr && octets_.Tire(8) != 0) return Reponse(boite->genre);
  const int genre = octets_.Tire(32);
  if (genre >= 20) return Tape();
  if (genre >= 14) return Clique();
  if (genre >= 12) return Montre();
  switch (genre) {
    case 0:
      return "tick";
    case 1:
      return std::string("now \"20") + octets_.Un({"26", "00", "10"}) + "-11-2" +
             octets_.Un({"4", "9", "x"}) + " 10:" + std::to_string(10 + octets_.Tire(52)) + ":00" +
             octets_.Un({"", ".5", ".999"}) + "\"";
    case 2:
      return "focus " + Case();
    case 3:
      return Touche(octets_.Tire(64));
    case 4:
      return std::string(octets_.Un({"press", "release"})) + " BtViewSolution " +
             octets_.Un({"souris", "espace"});
    case 5:
      return std::string("close ") + octets_.Un({"FRMHelp", "FRMSudoku", "FRMParties", "FRMNRVAbout", "FRM"});
    case 6:
      return "registre \"SOFTWARE\\\\Microsoft\\\\Shared Tools" +
             std::string(octets_.Un({"\\\\MSINFO\" \"PATH\" ", " Location\" \"MSINFO\" "})) + Chemin();
    case 7:
      fichiers_.Panne(octets_.Tire(longue_ ? 1 : 8));
      return "show state";
    case 8:
      return "start " + Chemin();
    case 9:
      return "answer " + std::string(octets_.Un({"ok", "oui", "non", "annuler", "\"1234\"", "peut-être"}));
    case 10:
      return LigneBrute();
    default:
      return DansFenetre();
  }
}

std::string Partie::Touche(int tirage) {
  constexpr const char* kActes[] = {"annule", "retablit", "annule", "colle \"1..4|3.1.|2..3|.3..\""};
  constexpr int kCodes = 60;
  return tirage < kCodes ? "key " + std::to_string(tirage - 1) : kActes[tirage - kCodes];
}

// Bytes as they stand, but for a run of the solver that is not known to be short.
std::string Partie::LigneBrute() {
  const std::string_view ligne = octets_.Morceau(static_cast<std::size_t>(octets_.Tire(32)));
  return ligne.find("Solveur2") == std::string_view::npos ? std::string(ligne) : Clique();
}

std::string Partie::Reponse(GenreBoite genre) {
  if (genre == GenreBoite::kMessage) return "answer ok";
  if (genre == GenreBoite::kQuestion) return octets_.Tire(4) == 0 ? "answer non" : "answer oui";
  if (genre == GenreBoite::kFenetre) {
    ++fenetres;
    return DansFenetre();
  }
  if (octets_.Tire(8) == 0) return "answer annuler";
  return "answer " + (genre == GenreBoite::kSaisie ? Guillemets(Symboles()) : Chemin());
}

// Side 16 in long games alone: of others there are to be many.
TexteVue Partie::Symboles() {
  const TexteVue symboles = kSymboles[octets_.Tire(static_cast<int>(std::size(kSymboles)))];
  return symboles.size() > 9 && !longue_ ? kSymboles[0] : symboles;
}

std::string Partie::DansFenetre() {
  const int genre = octets_.Tire(8);
  if (genre == 0) return std::string("edit ") + octets_.Un({"LstSave ", "LstSave ", "LstLoad "}) + Chaine();
  if (genre <= 2) {
    return std::string("select ") + (genre == 1 ? "LstSave " : "LstLoad ") +
           std::to_string(octets_.Tire(5) - 2);
  }
  if (genre == 3) return std::string("click ") + octets_.Un({"BtDel", "BtDel", "BtSysInfo"});
  if (genre == 4) return std::string("dblclick ") + octets_.Un({"LstLoad", "LstSave"});
  return "key " + std::string(octets_.Un({"13", "27"}));
}

std::string Partie::Clique() {
  const std::string nom = octets_.Un(
      {"MnuInit",     "MnuStart",     "MnuRestart",  "MnuReinit",   "MnuSave",    "MnuLoad",
       "MnuPartie",   "MnuScores",    "MnuAssist",   "MnuAssist",   "MnuSolver",  "MnuSolveur2",
       "MnuSolveur2", "MnuAbout",     "MnuQuit",     "ChkLightSur", "ChkForeRed", "ChkRep",
       "ChkTips",     "ChkLightPoss", "ChkForeBlue", "ChkListPoss", "BtOK",       "BtDel",
       "BtSysInfo",   "MnuInit",      "MnuStart",    "MnuSave",     "MnuLoad",    "BtViewSolution"});
  return "click " + (nom == "MnuSolveur2" && !ResoutVite() ? "MnuSolver" : nom);
}

std::string Partie::Montre() {
  const int genre = octets_.Tire(8);
  if (genre == 0) return "show cell " + Case();
  if (genre == 1) return "show file " + Chemin();
  if (genre == 2) return "show TxtCase(" + Case() + ")";
  if (genre == 3) return "show Box(" + Case() + ")";
  if (genre == 4) {
    return std::string("show ") +
           octets_.Un({"FRMSudoku", "FRMHelp", "FRMParties", "Tmr", "LblChrono", "ChkRep", "MnuStart", "Mnu1",
                       "TxtTips", "BtOK", "PicIco", "Line1(0)"});
  }
  return std::string("show ") + octets_.Un({"state", "grid", "etats", "menus", "LstLoad", "LstSave", "scores",
                                            "library", "boxes", "LblInfos"});
}

// A symbol of the grid, one that is possible there, the next of the solution where one is known, or anything.
std::string Partie::Tape() {
  const Grille& grille = Jeu().VmGrille;
  if (grille.Borne() == 0) return "click MnuInit";
  const int i = 1 + octets_.Tire(256) % grille.Borne();
  const std::string debut = "type " + std::to_string(i) + " ";
  const int genre = octets_.Tire(256);
  if (genre >= 0xE0) return debut + Chaine();
  if (genre >= 0xA0 && genre < 0xC0 && Jeu().VsResolu && Jeu().VmGrilleEtat.Borne() == grille.Borne()) {
    for (int k = 1; k <= grille.Borne(); ++k) {
      const Texte& juste = Jeu().VmGrilleEtat(k).ValeurSaisie();
      if (grille(k).ValeurSaisie() != juste) return "type " + std::to_string(k) + " " + Guillemets(juste);
    }
  }
  const Texte symboles = genre < 0x60 ? grille.Symboles() : grille(i).Possible();
  if (symboles.empty()) return debut + "\"\"";
  return debut + Guillemets(TexteVue(symboles).substr(static_cast<std::size_t>(genre % 32) % symboles.size(),
                                                      genre >= 0xC0 ? 2 : 1));
}

std::string Partie::Case() {
  const int borne = std::max(1, Jeu().VmGrille.Borne());
  return std::to_string(octets_.Tire(256) * 3 % (borne + 2));
}

std::string Partie::Chaine() {
  const int choix = octets_.Tire(24);
  if (choix < 19) return Guillemets(kTextes[choix]);
  return Guillemets(DepuisUtf8(octets_.Morceau(static_cast<std::size_t>(choix - 18) * 2)));
}

std::string Partie::Chemin() {
  return octets_.Un({"\"/a.sud\"", "\"/b\"", "\"/partie.sud\"", "\"\\\"/partie.sud\\\"\"",
                     "\"\\\"/a.sud\\\"\"", "\"/rien\"", "\"\"", "\"x\"", "\"/a\\x00b.SUD\"", "\"/b.sud~\""});
}

// Suppositions where few cells are open: few levels, and so few passes from one box to the next.
bool Partie::ResoutVite() {
  const Grille& grille = Jeu().VmGrille;
  int vides = 0;
  for (int i = 1; i <= grille.Borne(); ++i) vides += grille(i).ValeurSaisie().empty() ? 1 : 0;
  return vides <= 16;
}

}  // namespace sudoku::fuzz
