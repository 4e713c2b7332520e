#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>

#include "faults/appels.h"
#include "joueur.h"

// A save goes wrong at every system call in turn: the call fails, or the process dies there. Whatever
// happens, the player has the old file or the new one, whole.

namespace sudoku {
namespace {

namespace fs = std::filesystem;
using appels::Panne;
using appels::Plan;
using namespace std::string_literals;

const std::string kAncien =
    "1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\nvieux-1022 0 0 0 020 0 030 0 0 0 0 040\r\n\0Marie-00:03:17\0"s;
const std::string kNouveau =
    "1234\r\n10 0 0 0 0 020 0 030 0 0 0 0 040\r\nvieux-1022 0 0 0 020 0 030 0 0 0 0 040\r\n"
    "neuf-1022 0 0 0 020 0 030 0 0 0 0 040\r\n\0Marie-00:03:17\0"s;

struct Depart {
  const char* nom;
  bool fichier;       // the file is there
  bool vieilleCopie;  // so is a copy from a save cut short
};
constexpr Depart kDeparts[] = {
    {"fichier", true, false}, {"fichier et copie", true, true}, {"rien", false, false}};

// A folder of its own, and a player who is about to save a game in it.
class Scene {
 public:
  explicit Scene(const Depart& depart) : depart_(depart), dossier_(NouveauDossier()) {
    EcritOctets(Fichier(), kAncien);
    joueur.reponses.emplace_back([](Boite& boite) { ChoisitPartie(boite, 0); });
    joueur.Demarre(Fichier());
    joueur.Tape(2, U"2");
    if (!depart.fichier) fs::remove(Fichier());
    if (depart.vieilleCopie) EcritOctets(Fichier() + "~", "vieille copie");
  }
  ~Scene() { fs::remove_all(dossier_); }

  std::vector<std::string> Sauve(Plan plan) {
    joueur.reponses = {[](Boite& boite) { NommePartie(boite, U"neuf"); }};
    return appels::Observe(dossier_, plan, [this] { joueur.Clique("MnuSave"); });
  }
  // Saves in a process of its own, which the plan may kill.
  void SauveEtMeurt(Plan plan) {
    const pid_t enfant = fork();
    if (enfant == 0) {
      Sauve(plan);
      _exit(0);
    }
    int etat = 0;
    waitpid(enfant, &etat, 0);
    ASSERT_TRUE((WIFSIGNALED(etat) && WTERMSIG(etat) == SIGKILL) ||
                (WIFEXITED(etat) && WEXITSTATUS(etat) == 0));
  }

  std::string Fichier() const { return dossier_ + "/jeu.sud"; }
  std::string Copie() const { return Fichier() + (depart_.vieilleCopie ? "~2" : "~"); }
  std::vector<std::string> Noms() const {
    std::vector<std::string> noms;
    for (const auto& entree : fs::directory_iterator(dossier_))
      noms.push_back(entree.path().filename().string());
    std::ranges::sort(noms);
    return noms;
  }
  // The old content or the new one is there, and an older copy as it was.
  bool RienDePerdu() const {
    if (depart_.vieilleCopie && LitOctets(Fichier() + "~") != "vieille copie") return false;
    const std::string fichier = LitOctets(Fichier());
    return !depart_.fichier || fichier == kNouveau || fichier == kAncien || LitOctets(Copie()) == kAncien;
  }

  Joueur joueur;

 private:
  const Depart& depart_;
  std::string dossier_;
};

std::vector<std::string> AppelsDUneSauvegarde(const Depart& depart) {
  return Scene(depart).Sauve({});
}

TEST(Sauvegarde, SansPanneRemplaceLeFichierEtOteSaCopie) {
  for (const Depart& depart : kDeparts) {
    Scene scene(depart);
    scene.Sauve({});
    EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << depart.nom;
    const auto attendus =
        depart.vieilleCopie ? std::vector{"jeu.sud"s, "jeu.sud~"s} : std::vector{"jeu.sud"s};
    EXPECT_EQ(scene.Noms(), attendus) << depart.nom;
    EXPECT_TRUE(scene.RienDePerdu()) << depart.nom;
  }
}

// What a power cut leaves depends on what was on the disk by then.
TEST(Sauvegarde, CopieSurLeDisqueAvantDeViderNouveauSurLeDisqueAvantDOter) {
  const auto faits = AppelsDUneSauvegarde(kDeparts[0]);
  std::size_t place = 0;
  for (const std::string etape : {"write jeu.sud~", "fsync jeu.sud~", "fsync .", "ftruncate jeu.sud",
                                  "write jeu.sud", "fsync jeu.sud", "close jeu.sud", "unlink jeu.sud~"}) {
    const auto trouve = std::find(faits.begin() + static_cast<std::ptrdiff_t>(place), faits.end(), etape);
    ASSERT_NE(trouve, faits.end()) << etape;
    place = static_cast<std::size_t>(trouve - faits.begin());
  }
  EXPECT_EQ(std::ranges::count(faits, "ftruncate jeu.sud"), 1);
  EXPECT_EQ(std::ranges::count(faits, "write jeu.sud"), 1) << "one write for the whole text";
}

// After a failed call: a report and the game as the steps before left it, or a save that is whole. Then
// saving again succeeds.
void VerifieEchec(const Depart& depart, Plan plan) {
  Scene scene(depart);
  const auto faits = scene.Sauve(plan);
  const std::string ou = depart.nom + ": "s + std::to_string(plan.rang) + " " +
                         faits[static_cast<std::size_t>(plan.rang) - 1] + ", code " +
                         std::to_string(plan.code);
  Joueur& joueur = scene.joueur;
  EXPECT_TRUE(scene.RienDePerdu()) << ou;
  const bool signale = joueur.AVu("message \"FRMSudoku.JeuSave : 75 - Erreur d'accès au chemin/fichier\"");
  // From here on the file is being written: nothing that fails on it may go unsaid.
  const auto vide = std::ranges::find(faits, "ftruncate jeu.sud");
  const auto echec = faits.begin() + plan.rang - 1;
  if (echec >= vide && echec->ends_with(" jeu.sud")) {
    EXPECT_TRUE(signale) << ou;
  }
  if (!signale) {
    EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << ou;
  }
  const bool nommee = joueur.reponses.empty();
  EXPECT_EQ(joueur.Jeu().VgParties.size(), nommee ? 3U : 2U) << ou;
  EXPECT_EQ(joueur.Jeu().VmPartie, nommee ? 2 : 0) << ou;
  EXPECT_EQ(joueur.Jeu().VgEtat, kJeu) << ou;
  EXPECT_EQ(joueur.Jeu().VmNom, DepuisUtf8(scene.Fichier())) << ou;
  EXPECT_TRUE(joueur.Jeu().VmGrille(2).ValeurSaisie() == U"2") << ou;

  scene.Sauve({});
  EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << ou << ", second save";
}

TEST(Sauvegarde, ChaqueAppelEchoueTourATour) {
  for (const Depart& depart : kDeparts) {
    const int nombre = static_cast<int>(AppelsDUneSauvegarde(depart).size());
    for (int rang = 1; rang <= nombre; ++rang) {
      for (const int code : {ENOSPC, EACCES, EIO, ENOENT}) {
        VerifieEchec(depart, {Panne::kEchec, rang, code});
      }
    }
  }
}

TEST(Sauvegarde, AppelsInterrompusOuPartielsNEmpechentRien) {
  const auto faits = AppelsDUneSauvegarde(kDeparts[0]);
  for (int rang = 1; rang <= static_cast<int>(faits.size()); ++rang) {
    const std::string& appel = faits[static_cast<std::size_t>(rang) - 1];
    if (!appel.starts_with("read") && !appel.starts_with("write")) continue;
    for (const Plan plan : {Plan{Panne::kEchec, rang, EINTR}, Plan{Panne::kCourt, rang, 0}}) {
      Scene scene(kDeparts[0]);
      scene.Sauve(plan);
      EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << rang << " " << appel;
      EXPECT_EQ(scene.Noms(), std::vector{"jeu.sud"s}) << rang << " " << appel;
    }
  }
}

// The process dies at each call; another one then loads what is there and saves.
TEST(Sauvegarde, MortAChaqueAppel) {
  for (const Depart& depart : kDeparts) {
    const auto faits = AppelsDUneSauvegarde(depart);
    for (int rang = 1; rang <= static_cast<int>(faits.size()); ++rang) {
      for (const Panne panne : {Panne::kMortAvant, Panne::kMortPendant}) {
        const std::string ou =
            depart.nom + ": "s + std::to_string(rang) + " " + faits[static_cast<std::size_t>(rang) - 1];
        Scene scene(depart);
        scene.SauveEtMeurt({panne, rang, 0});
        EXPECT_TRUE(scene.RienDePerdu()) << ou;
        if (depart.fichier && LitOctets(scene.Fichier()).empty()) {
          Joueur suivant;
          suivant.Demarre(scene.Fichier());
          EXPECT_TRUE(suivant.AVu(
              "62 - L'entrée dépasse la fin de fichier (la version précédente est conservée dans " +
              scene.Fichier() + "~)"))
              << ou << suivant.Sortie();
        }
        scene.Sauve({});
        EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << ou;
        EXPECT_TRUE(scene.RienDePerdu()) << ou;
      }
    }
  }
}

}  // namespace
}  // namespace sudoku
