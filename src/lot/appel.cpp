#include "lot/appel.h"

#include <getopt.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <string_view>
#include <thread>

#include "grid/geometrie.h"
#include "lot/sortie.h"

namespace sudoku::lot {
namespace {

constexpr std::string_view kAide = R"(sudoku-lot : résout, explique et vérifie des grilles en grand nombre

  sudoku-lot resoudre  [--symboles S] [--deduction] [--processus J] [FICHIER…]
  sudoku-lot expliquer [--symboles S] [--passes 1|2] [--texte] [FICHIER…]
  sudoku-lot demontrer [--symboles S] [--supposer] [--format texte|json|html] [--processus J] [FICHIER…]
  sudoku-lot verifier  [--symboles S] [--processus J] [FICHIER…]
  sudoku-lot importer  [--symboles S] [FICHIER] > PARTIE.sud
  sudoku-lot exporter  PARTIE.sud

Une grille par ligne : un caractère par case (« . », « 0 » ou une espace pour une case vide), ou deux, la
valeur et l'état. Sans FICHIER, ou pour « - », l'entrée standard est lue. Ce qui suit une tabulation est
ignoré, comme les lignes vides et celles qui commencent par « # ».

resoudre   la grille, le résultat, les suppositions, celles réfutées, les retours arrière, le message
expliquer  tout ce qui est déduit de chaque case et pourquoi, en JSON
demontrer  tout le chemin jusqu'à la solution : chaque étape avec ses raisons, chaque supposition, chaque
           réfutation ; en texte, en JSON, ou comme page HTML à lire et à imprimer
verifier   compte les solutions à sa manière et, s'il n'y en a qu'une, lui confronte tout ce qui est déduit :
           la grille, les solutions (2 : plusieurs), les évaluations, les retraits vérifiés, les contradictions
importer   fait un fichier de jeu d'une grille écrite de toute manière usuelle, cadres compris
exporter   écrit la grille d'un fichier de jeu et ses parties, chacune avec son nom, comme lignes à lire ici

  --symboles S   les symboles de la grille, un par valeur (123456789)
  --deduction    ne rien supposer
  --supposer     supposer là où la déduction s'arrête
  --format F     texte, json ou html (texte)
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

Format FormatDe(const std::string& mot) {
  if (mot == "texte") return Format::kTexte;
  if (mot == "json") return Format::kJson;
  if (mot == "html") return Format::kHtml;
  throw AppelIncorrect{"--format : « " + mot + " » n'est ni texte, ni json, ni html"};
}

int Processus(int demandes) {
  return demandes > 0 ? demandes : static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
}

struct Commande {
  std::string_view nom;
  std::string_view options;
  bool fichierDeJeu = false;  // a whole file, one at a time
};
constexpr Commande kCommandes[] = {{"resoudre", "--symboles --processus --deduction"},
                                   {"expliquer", "--symboles --passes --texte"},
                                   {"demontrer", "--symboles --processus --supposer --format"},
                                   {"verifier", "--symboles --processus"},
                                   {"importer", "--symboles", true},
                                   {"exporter", "", true}};

const Commande& Connue(const std::string& mot) {
  const auto commande = std::ranges::find(kCommandes, mot, &Commande::nom);
  if (commande == std::end(kCommandes)) throw AppelIncorrect{"commande inconnue : " + mot};
  return *commande;
}

constexpr option kOptions[] = {
    {"symboles", required_argument, nullptr, 0}, {"processus", required_argument, nullptr, 0},
    {"passes", required_argument, nullptr, 0},   {"deduction", no_argument, nullptr, 0},
    {"texte", no_argument, nullptr, 0},          {"supposer", no_argument, nullptr, 0},
    {"format", required_argument, nullptr, 0}};

// The words of a call: options with their values, of an option given twice the last, and what is no option.
struct Mots {
  std::map<std::string, std::string> options;
  std::vector<std::string> fichiers;
  std::string inconnue;  // the first that looks like an option and is none
};

std::vector<option> OptionsDe(const Commande& commande) {
  std::vector<option> options;
  for (const option& o : kOptions) {
    if (commande.options.find(std::string("--") + o.name) != std::string_view::npos) options.push_back(o);
  }
  options.push_back({});
  return options;
}

// The words, the command first, which the C library takes for the name of the program.
Mots Trie(const Commande& commande, std::vector<std::string> mots) {
  constexpr int kFichier = 1;
  const std::vector<option> options = OptionsDe(commande);
  std::vector<char*> argv;
  argv.reserve(mots.size());
  for (std::string& mot : mots) argv.push_back(mot.data());
  Mots tries;
  opterr = 0;
  optind = 0;
  int ici = 1;
  for (int lue = 0;
       (lue = getopt_long(static_cast<int>(argv.size()), argv.data(), "-:", options.data(), nullptr)) != -1;
       ici = optind) {
    const std::string mot = argv[static_cast<std::size_t>(ici)];
    const std::string nom = mot.substr(0, mot.find('='));
    if (lue == kFichier) {
      tries.fichiers.push_back(mot);
    } else if (std::ranges::none_of(options, [&](const option& o) {
                 return o.name != nullptr && nom == std::string("--") + o.name;
               })) {
      // The beginning of a name would do for the library, and not here; what it took for the value is a word.
      optind = std::min(optind, ici + 1);
      if (tries.inconnue.empty()) tries.inconnue = mot;
    } else if (lue == ':') {
      throw AppelIncorrect{"une option attend une valeur qui n'est pas donnée"};
    } else if (lue == '?') {
      throw AppelIncorrect{"options incorrectes"};
    } else {
      tries.options[nom] = optarg == nullptr ? "" : optarg;
    }
  }
  tries.fichiers.insert(tries.fichiers.end(), mots.begin() + optind, mots.end());
  return tries;
}

Appel Lit(const std::vector<std::string>& mots) {
  constexpr int kProcessusMax = 1024;
  const Commande& commande = Connue(mots.front());
  Mots tries = Trie(commande, mots);
  const auto donnee = [&](const char* nom) { return tries.options.contains(nom); };
  Appel appel;
  appel.commande = commande.nom;
  appel.deduction = donnee("--deduction");
  appel.texte = donnee("--texte");
  appel.supposer = donnee("--supposer");
  if (donnee("--symboles")) appel.symboles = Symboles(tries.options["--symboles"]);
  if (commande.fichierDeJeu && Contient(appel.symboles, U"\n")) {
    throw AppelIncorrect{
        "Choix incorrect : une fin de ligne n'est pas un symbole qu'un fichier puisse tenir"};
  }
  if (donnee("--processus")) {
    appel.processus = Processus(Entier(tries.options["--processus"], "--processus", 0, kProcessusMax));
  }
  if (donnee("--passes")) appel.passes = Entier(tries.options["--passes"], "--passes", 1, 2);
  if (donnee("--format")) appel.format = FormatDe(tries.options["--format"]);
  if (!tries.inconnue.empty()) throw AppelIncorrect{"option inconnue : " + tries.inconnue};
  appel.fichiers = std::move(tries.fichiers);
  if (appel.fichiers.empty()) appel.fichiers.emplace_back("-");
  if (commande.fichierDeJeu && appel.fichiers.size() > 1) throw AppelIncorrect{"un seul fichier à la fois"};
  return appel;
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

std::optional<Appel> LitAppel(int argc, const char* const* argv, int& statut) {
  const std::vector<std::string> mots(argv + std::min(argc, 1), argv + argc);
  statut = 0;
  if (AideDemandee(mots)) {
    Sortie().Ecrit(kAide);
    return std::nullopt;
  }
  try {
    if (mots.empty()) throw AppelIncorrect{"il manque la commande"};
    return Lit(mots);
  } catch (const AppelIncorrect& erreur) {
    EcritTout(STDERR_FILENO,
              "sudoku-lot : " + Montrable(erreur.raison) + "\nsudoku-lot --aide dit comment l'appeler.\n");
    statut = 2;
    return std::nullopt;
  }
}

}  // namespace sudoku::lot
