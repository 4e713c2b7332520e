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

// Calls `essai` for each call of a save that nothing disturbs, with its number and what it is.
template <class Essai>
void PourChaqueAppel(const Depart& depart, Essai essai) {
  int rang = 0;
  for (const std::string& appel : Scene(depart).Sauve({})) {
    SCOPED_TRACE(depart.nom + ": "s + std::to_string(++rang) + " " + appel);
    essai(rang, appel);
  }
}

// A save that went through: the new file, and nothing beside it but what was there.
void VerifieReussite(const Depart& depart, Plan plan) {
  Scene scene(depart);
  scene.Sauve(plan);
  EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau);
  const auto copies = depart.vieilleCopie ? std::vector{"jeu.sud"s, "jeu.sud~"s} : std::vector{"jeu.sud"s};
  EXPECT_EQ(scene.Noms(), copies);
  EXPECT_TRUE(scene.RienDePerdu());
}

TEST(Sauvegarde, SansPanneRemplaceLeFichierEtOteSaCopie) {
  for (const Depart& depart : kDeparts) VerifieReussite(depart, {});
}

// What a power cut leaves depends on what was on the disk by then.
TEST(Sauvegarde, CopieSurLeDisqueAvantDeViderNouveauSurLeDisqueAvantDOter) {
  auto faits = Scene(kDeparts[0]).Sauve({});
  std::erase_if(faits, [](const std::string& appel) {
    return appel.starts_with("open") || appel.starts_with("fstat") || appel.starts_with("read") ||
           (appel.starts_with("close") && appel != "close jeu.sud");
  });
  ASSERT_GE(faits.size(), 10U);
  faits.resize(10);
  EXPECT_EQ(faits, (std::vector{"write jeu.sud~"s, "fsync jeu.sud~"s, "fsync ."s, "close jeu.sud"s,
                                "ftruncate jeu.sud"s, "write jeu.sud"s, "ftruncate jeu.sud"s,
                                "fsync jeu.sud"s, "close jeu.sud"s, "unlink jeu.sud~"s}));
}

// After a failed call: a report and the game as the steps before left it, or a save that is whole. Then
// saving again succeeds.
void VerifieEchec(const Depart& depart, Plan plan) {
  SCOPED_TRACE(plan.code);
  Scene scene(depart);
  const auto noms = scene.Noms();
  const auto faits = scene.Sauve(plan);
  Joueur& joueur = scene.joueur;
  EXPECT_TRUE(scene.RienDePerdu());
  const bool signale = joueur.AVu("message \"FRMSudoku.JeuSave : 75 - Erreur d'accès au chemin/fichier\"");
  // From here on the file is being written: nothing that fails on it may go unsaid.
  const auto vide = std::ranges::find(faits, "ftruncate jeu.sud");
  const auto echec = faits.begin() + plan.rang - 1;
  EXPECT_TRUE(signale || echec < vide || !echec->ends_with(" jeu.sud"));
  EXPECT_TRUE(signale || LitOctets(scene.Fichier()) == kNouveau);
  EXPECT_TRUE(!signale || !depart.fichier || echec >= vide || scene.Noms() == noms)
      << "a copy that isn't whole goes";
  const bool nommee = joueur.reponses.empty();
  EXPECT_EQ(joueur.Jeu().VgParties.size(), nommee ? 3U : 2U);
  EXPECT_EQ(joueur.Jeu().VmPartie, nommee ? 2 : 0);
  EXPECT_EQ(joueur.Jeu().VgEtat, kJeu);
  EXPECT_EQ(joueur.Jeu().VmNom, DepuisUtf8(scene.Fichier()));
  EXPECT_EQ(joueur.Jeu().VmGrille(2).ValeurSaisie(), U"2");

  scene.Sauve({});
  EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << "second save";
}

TEST(Sauvegarde, ChaqueAppelEchoueTourATour) {
  for (const Depart& depart : kDeparts) {
    PourChaqueAppel(depart, [&](int rang, const std::string&) {
      for (const int code : {ENOSPC, EACCES, EIO, ENOENT}) VerifieEchec(depart, {Panne::kEchec, rang, code});
    });
  }
}

TEST(Sauvegarde, AppelsInterrompusOuPartielsNEmpechentRien) {
  PourChaqueAppel(kDeparts[0], [&](int rang, const std::string& appel) {
    if (!appel.starts_with("read") && !appel.starts_with("write")) return;
    VerifieReussite(kDeparts[0], {Panne::kEchec, rang, EINTR});
    VerifieReussite(kDeparts[0], {Panne::kCourt, rang, 0});
  });
}

// The process dies at the call; another one then loads what is there and saves.
void VerifieMort(const Depart& depart, Plan plan) {
  Scene scene(depart);
  scene.SauveEtMeurt(plan);
  EXPECT_TRUE(scene.RienDePerdu());
  if (depart.fichier && LitOctets(scene.Fichier()).empty()) {
    Joueur suivant;
    suivant.Demarre(scene.Fichier());
    EXPECT_TRUE(
        suivant.AVu("62 - L'entrée dépasse la fin de fichier (la version précédente est conservée dans " +
                    scene.Copie() + ")"))
        << suivant.Sortie();
  }
  scene.Sauve({});
  EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau);
  EXPECT_TRUE(scene.RienDePerdu());
}

TEST(Sauvegarde, MortAChaqueAppel) {
  for (const Depart& depart : kDeparts) {
    PourChaqueAppel(depart, [&](int rang, const std::string&) {
      VerifieMort(depart, {Panne::kMortAvant, rang, 0});
      VerifieMort(depart, {Panne::kMortPendant, rang, 0});
    });
  }
}

// Two games on one file: the second saves while the first asks for a name.
TEST(Sauvegarde, DeuxPartiesSurUnFichier) {
  Scene scene(kDeparts[0]);
  Joueur autre;
  autre.reponses.emplace_back([](Boite& boite) { ChoisitPartie(boite, 0); });
  autre.Demarre(scene.Fichier());
  autre.Tape(2, U"2");
  autre.reponses.emplace_back([](Boite& boite) { NommePartie(boite, U"un nom qui est beaucoup plus long"); });
  scene.joueur.reponses = {[&](Boite& boite) {
    autre.Clique("MnuSave");
    NommePartie(boite, U"neuf");
  }};
  scene.joueur.Clique("MnuSave");
  EXPECT_EQ(LitOctets(scene.Fichier()), kNouveau) << "nothing of the other's stands behind it";
  EXPECT_EQ(scene.Noms(), (std::vector{"jeu.sud"s, "jeu.sud~2"s, "jeu.sud~3"s}));
  EXPECT_EQ(LitOctets(scene.Fichier() + "~2"), "") << "what the other found";
  EXPECT_NE(LitOctets(scene.Fichier() + "~3").find("beaucoup plus long-1022"), std::string::npos);

  // Each now finds what the other wrote, and leaves it beside the file.
  autre.Clique("MnuSave");
  EXPECT_EQ(LitOctets(scene.Fichier() + "~"), kNouveau);
  autre.Clique("MnuSave");
  EXPECT_EQ(scene.Noms().size(), 4U) << "its own work needs no copy";
}

}  // namespace
}  // namespace sudoku
