#include "lot/appel.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <string_view>
#include <thread>

#include "grid/geometrie.h"

namespace sudoku::lot {
namespace {

constexpr std::string_view kAide = R"(sudoku-lot : résout, explique et vérifie des grilles en grand nombre

  sudoku-lot resoudre  [--symboles S] [--deduction] [--processus J] [FICHIER…]
  sudoku-lot expliquer [--symboles S] [--passes 1|2] [--texte] [FICHIER…]
  sudoku-lot verifier  [--symboles S] [--processus J] [FICHIER…]
  sudoku-lot importer  [--symboles S] [FICHIER] > PARTIE.sud
  sudoku-lot exporter  PARTIE.sud

Une grille par ligne : un caractère par case (« . », « 0 » ou une espace pour une case vide), ou deux, la
valeur et l'état. Sans FICHIER, ou pour « - », l'entrée standard est lue. Ce qui suit une tabulation est
ignoré, comme les lignes vides et celles qui commencent par « # ».

resoudre   la grille, le résultat, les suppositions, celles réfutées, les retours arrière, le message
expliquer  tout ce qui est déduit de chaque case et pourquoi, en JSON
verifier   compte les solutions à sa manière et, s'il n'y en a qu'une, lui confronte tout ce qui est déduit :
           la grille, les solutions (2 : plusieurs), les évaluations, les retraits vérifiés, les contradictions
importer   fait un fichier de jeu d'une grille écrite de toute manière usuelle, cadres compris
exporter   écrit la grille d'un fichier de jeu et ses parties, chacune avec son nom, comme lignes à lire ici

  --symboles S   les symboles de la grille, un par valeur (123456789)
  --deduction    ne rien supposer
  --processus J  travailler sur J grilles à la fois ; 0 : une par processeur (1)
  --passes P     1 : sans compter les saisies non prouvées ; 2 : en les comptant au besoin (2)
  --texte        expliquer en texte au lieu de JSON
  --aide         cette aide

Statut : 0 tout a été lu, 1 une ligne ou un fichier n'a pas pu l'être, 2 l'appel est incorrect,
3 verifier a trouvé une contradiction.
)";

// Why the call is wrong, in French.
struct AppelIncorrect {
  std::string raison;
};

int Entier(const std::string& mot, const char* option, int minimum, int maximum) {
  int valeur = 0;
  const auto [fin, erreur] = std::from_chars(mot.data(), mot.data() + mot.size(), valeur);
  if (erreur != std::errc{} || fin != mot.data() + mot.size() || valeur < minimum || valeur > maximum) {
    throw AppelIncorrect{std::string(option) + " : « " + mot + " » n'est pas un nombre de " +
                         std::to_string(minimum) + " à " + std::to_string(maximum)};
  }
  return valeur;
}

Texte Symboles(const std::string& mot) {
  const std::optional<Texte> symboles = DepuisUtf8Strict(mot);
  if (!symboles) throw AppelIncorrect{"Choix incorrect : les symboles ne sont pas de l'UTF-8"};
  if (!TailleAcceptable(symboles->size())) {
    throw AppelIncorrect{"Choix incorrect : " + std::to_string(symboles->size()) +
                         " symbole(s) ; il en faut 1, 4, 9, 16 … 169, le carré d'un nombre de 1 à 13"};
  }
  return *symboles;
}

// The library's own messages are English: they are told by their kind.
std::string Raison(const CLI::ParseError& erreur) {
  if (erreur.get_exit_code() == static_cast<int>(CLI::ExitCodes::ArgumentMismatch)) {
    return "une option attend une valeur qui n'est pas donnée";
  }
  return "options incorrectes";
}

void Analyse(CLI::App& app, std::vector<std::string> mots) {
  mots.erase(mots.begin());                // the command
  std::reverse(mots.begin(), mots.end());  // the order that the library takes words in
  try {
    app.parse(std::move(mots));
  } catch (const CLI::ParseError& erreur) {
    throw AppelIncorrect{Raison(erreur)};
  }
}

int Processus(int demandes) {
  return demandes > 0 ? demandes : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

// What isn't an option is a file, and behind "--" everything. The library would take "[a]" for a list of
// files.
std::vector<std::string> Fichiers(const std::vector<std::string>& restes) {
  std::vector<std::string> fichiers;
  bool options = true;
  for (const std::string& mot : restes) {
    if (options && mot == "--") {
      options = false;
    } else if (options && mot.size() > 1 && mot.front() == '-') {
      throw AppelIncorrect{"option inconnue : " + mot};
    } else {
      fichiers.push_back(mot);
    }
  }
  if (fichiers.empty()) fichiers.emplace_back("-");
  return fichiers;
}

struct Commande {
  std::string_view nom;
  std::string_view options;
  bool fichierDeJeu = false;  // a whole file, one at a time
};
constexpr Commande kCommandes[] = {{"resoudre", "--symboles --processus --deduction"},
                                   {"expliquer", "--symboles --passes --texte"},
                                   {"verifier", "--symboles --processus"},
                                   {"importer", "--symboles", true},
                                   {"exporter", "", true}};

const Commande& Connue(const std::string& mot) {
  const auto commande = std::ranges::find(kCommandes, mot, &Commande::nom);
  if (commande == std::end(kCommandes)) throw AppelIncorrect{"commande inconnue : " + mot};
  return *commande;
}

Appel Lis(std::vector<std::string> mots) {
  constexpr int kProcessusMax = 1024;
  const Commande& commande = Connue(mots.front());
  Appel appel;
  appel.commande = commande.nom;
  // Values as words: what is wrong with them is to be said in French.
  std::string symboles;
  std::string processus;
  std::string passes;
  CLI::App app;
  app.set_help_flag();
  app.allow_extras();
  const auto permise = [&](std::string_view nom) {
    return commande.options.find(nom) != std::string_view::npos;
  };
  const auto valeur = [&](const char* nom, std::string& mot) {
    if (permise(nom)) app.add_option(nom, mot)->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
  };
  const auto drapeau = [&](const char* nom, bool& mis) {
    if (permise(nom)) app.add_flag(nom, mis);
  };
  valeur("--symboles", symboles);
  valeur("--processus", processus);
  valeur("--passes", passes);
  drapeau("--deduction", appel.deduction);
  drapeau("--texte", appel.texte);
  Analyse(app, std::move(mots));
  const auto donnee = [&](const char* nom) { return permise(nom) && app.count(nom) > 0; };
  if (donnee("--symboles")) appel.symboles = Symboles(symboles);
  if (donnee("--processus")) appel.processus = Processus(Entier(processus, "--processus", 0, kProcessusMax));
  if (donnee("--passes")) appel.passes = Entier(passes, "--passes", 1, 2);
  appel.fichiers = Fichiers(app.remaining());
  if (commande.fichierDeJeu && appel.fichiers.size() > 1) throw AppelIncorrect{"un seul fichier à la fois"};
  return appel;
}

void Ecris(std::FILE* flux, std::string_view texte) {
  std::fwrite(texte.data(), 1, texte.size(), flux);
}

// The word after --symboles is a value, whatever it is.
bool AideDemandee(const std::vector<std::string>& mots) {
  for (std::size_t i = 0; i < mots.size() && mots[i] != "--"; ++i) {
    if (mots[i] == "--aide" || mots[i] == "--help" || mots[i] == "-h") return true;
    if (mots[i] == "--symboles") ++i;
  }
  return false;
}

}  // namespace

std::optional<Appel> LisAppel(int argc, const char* const* argv, int& statut) {
  const std::vector<std::string> mots(argv + std::min(argc, 1), argv + argc);
  statut = 0;
  if (AideDemandee(mots)) {
    Ecris(stdout, kAide);
    return std::nullopt;
  }
  try {
    if (mots.empty()) throw AppelIncorrect{"il manque la commande"};
    return Lis(mots);
  } catch (const AppelIncorrect& erreur) {
    Ecris(stderr, "sudoku-lot : " + erreur.raison + "\nsudoku-lot --aide dit comment l'appeler.\n");
    statut = 2;
    return std::nullopt;
  }
}

}  // namespace sudoku::lot
