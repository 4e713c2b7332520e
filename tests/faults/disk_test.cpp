#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <tuple>

#include "joueur.h"
#include "platform/chemin.h"
#include "platform/erreur.h"
#include "storage/safe_save.h"

// Files that the disk itself makes difficult: folders, links, pipes, long names.

namespace sudoku {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

class Disque : public testing::Test {
 protected:
  Disque() : dossier_(NouveauDossier()) { fs::permissions(dossier_, fs::perms::all); }
  ~Disque() override { fs::remove_all(dossier_); }

  std::string Chemin(const std::string& nom) const { return dossier_ + "/" + nom; }
  std::size_t NombreDeFichiers() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(dossier_), fs::directory_iterator()));
  }

  std::string dossier_;
};

// The number of the failure, 0 for none.
template <class Corps>
int Numero(Corps corps) {
  try {
    FichiersDisque disque;
    corps(disque);
    return 0;
  } catch (const Erreur& erreur) {
    return erreur.Numero();
  }
}

int NumeroDeLecture(const std::string& chemin) {
  return Numero([&](FichiersDisque& disque) { disque.Lit(DepuisChemin(chemin)); });
}

// The old content is what the game knows of the file.
int NumeroDeSauvegarde(const std::string& chemin, const std::string& octets) {
  std::error_code code;
  const bool lisible = fs::is_regular_file(chemin, code);
  const ContenuConnu connu = {DepuisChemin(chemin), lisible ? LitOctets(chemin) : ""};
  return Numero([&](FichiersDisque& disque) { SafeSave(disque, connu.VmNom).Termine(octets, connu); });
}

TEST_F(Disque, LectureParSorteDeChemin) {
  EcritOctets(Chemin("fichier"), "octets");
  fs::create_directory(Chemin("dossier"));
  fs::create_symlink("nulle part", Chemin("lien mort"));
  fs::create_symlink("boucle", Chemin("boucle"));
  fs::create_symlink("fichier", Chemin("lien"));
  ASSERT_EQ(mkfifo(Chemin("tube").c_str(), 0666), 0);
  EcritOctets(Chemin("énorme"), "");
  fs::resize_file(Chemin("énorme"), std::uintmax_t{3} << 30);
  const struct {
    std::string chemin;
    int numero;
  } cas[] = {{Chemin("fichier"), 0},
             {Chemin("lien"), 0},
             {"", kFichierIntrouvable},
             {Chemin("absent"), kFichierIntrouvable},
             {Chemin("absent/fichier"), kFichierIntrouvable},
             {Chemin("fichier/fichier"), kFichierIntrouvable},
             {Chemin("fichier\0suite"s), kFichierIntrouvable},
             {Chemin("lien mort"), kFichierIntrouvable},
             {Chemin("dossier"), kAccesFichier},
             {Chemin("boucle"), kAccesFichier},
             {Chemin("tube"), kAccesFichier},
             {Chemin("énorme"), kAccesFichier},
             {Chemin(std::string(300, 'x')), kAccesFichier},
             {"/dev/zero", kAccesFichier}};
  for (const auto& c : cas) EXPECT_EQ(NumeroDeLecture(c.chemin), c.numero) << c.chemin;
}

TEST_F(Disque, SauvegardeRefuseeSansRienLaisser) {
  fs::create_directory(Chemin("dossier"));
  ASSERT_EQ(mkfifo(Chemin("tube").c_str(), 0666), 0);
  EcritOctets(Chemin("fichier"), "ancien");
  for (const std::string& nom : {"dossier"s, "tube"s, "absent/fichier"s, "fichier/fichier"s,
                                 "fichier\0suite"s, std::string(300, 'x'), ""s}) {
    EXPECT_EQ(NumeroDeSauvegarde(Chemin(nom), "nouveau"), kAccesFichier) << nom;
  }
  EXPECT_EQ(LitOctets(Chemin("fichier")), "ancien");
  EXPECT_EQ(NombreDeFichiers(), 3U);
}

// Names at the edge of what a folder takes, and of what UTF-8 says.
TEST_F(Disque, CopieSousToutNom) {
  std::string e125;
  for (int i = 0; i < 125; ++i) e125 += "é";
  const struct {
    std::string nom, copie, suivante;
  } cas[] = {{"jeu.sud", "jeu.sud~", "jeu.sud~2"},
             {"\xE9t\xE9", "\xE9t\xE9~", "\xE9t\xE9~2"},
             {std::string(254, 'x'), std::string(254, 'x') + "~", std::string(253, 'x') + "~2"},
             {std::string(255, 'y'), std::string(254, 'y') + "~", std::string(253, 'y') + "~2"},
             {e125 + ".sud", e125 + ".sud~", e125 + ".su~2"},
             {std::string(254, '\xE9'), std::string(254, '\xE9') + "~", std::string(253, '\xE9') + "~2"}};
  for (const auto& c : cas) {
    const Texte chemin = DepuisChemin(Chemin(c.nom));
    EXPECT_EQ(VersChemin(NomDeCopie(chemin, 1)), Chemin(c.copie));
    EXPECT_EQ(VersChemin(NomDeCopie(chemin, 2)), Chemin(c.suivante));
    EcritOctets(Chemin(c.nom), "ancien");
    FichiersDisque disque;
    const SafeSave enCours(disque, chemin);
    EXPECT_EQ(LitOctets(Chemin(c.copie)), "ancien") << c.copie;
    EXPECT_EQ(VersChemin(DerniereCopie(disque, chemin)), Chemin(c.copie));
  }
}

TEST_F(Disque, DerniereCopieQuiNEstPasVide) {
  const struct {
    const char* nom;
    const char* octets;
    int age;  // in seconds
    const char* derniere;
  } cas[] = {{"jeu~", "", 9, ""},           {"jeu~2", "2", 5, "jeu~2"},   {"jeu~4", "4", 7, "jeu~2"},
             {"jeu~12", "12", 3, "jeu~12"}, {"jeu~02", "x", 1, "jeu~12"}, {"jeu~x", "x", 1, "jeu~12"},
             {"autre~", "x", 1, "jeu~12"},  {"jeu~~", "x", 1, "jeu~12"},  {"jeu~13", "", 0, "jeu~12"}};
  FichiersDisque disque;
  EcritOctets(Chemin("jeu"), "jeu");
  fs::create_directory(Chemin("jeu~3"));
  const auto maintenant = fs::file_time_type::clock::now();
  for (const auto& c : cas) {
    EcritOctets(Chemin(c.nom), c.octets);
    fs::last_write_time(Chemin(c.nom), maintenant - std::chrono::seconds(c.age));
    const std::string attendue = *c.derniere == '\0' ? "" : Chemin(c.derniere);
    EXPECT_EQ(VersChemin(DerniereCopie(disque, DepuisChemin(Chemin("jeu")))), attendue) << c.nom;
  }
}

TEST_F(Disque, DroitsProprietaireEtLiensRestent) {
  EcritOctets(Chemin("cible"), "ancien et plus long");
  fs::permissions(Chemin("cible"), fs::perms(0640));
  if (geteuid() == 0) {
    ASSERT_EQ(chown(Chemin("cible").c_str(), 1234, 4321), 0);
  }
  fs::create_hard_link(Chemin("cible"), Chemin("autre nom"));
  fs::create_symlink("cible", Chemin("lien.sud"));
  const auto traits = [this] {
    struct stat infos = {};
    EXPECT_EQ(stat(Chemin("cible").c_str(), &infos), 0);
    return std::tuple(infos.st_ino, infos.st_mode, infos.st_uid, infos.st_gid);
  };
  const auto avant = traits();
  ASSERT_EQ(NumeroDeSauvegarde(Chemin("lien.sud"), "nouveau"), 0);
  EXPECT_EQ(traits(), avant);
  EXPECT_TRUE(fs::is_symlink(Chemin("lien.sud")));
  EXPECT_EQ(LitOctets(Chemin("autre nom")), "nouveau");
  EXPECT_EQ(NombreDeFichiers(), 3U);
}

TEST_F(Disque, CopieNAjoutePasDeDroits) {
  EcritOctets(Chemin("jeu"), "ancien");
  fs::permissions(Chemin("jeu"), fs::perms(0600));
  FichiersDisque disque;
  const SafeSave enCours(disque, DepuisChemin(Chemin("jeu")));
  EXPECT_EQ(fs::status(Chemin("jeu~")).permissions(), fs::perms(0600));
  EXPECT_EQ(LitOctets(Chemin("jeu~")), "ancien");
  EXPECT_EQ(LitOctets(Chemin("jeu")), "");
}

}  // namespace
}  // namespace sudoku
