#include "lot/sud.h"

#include <unistd.h>

#include <algorithm>

#include "grid/grille_texte.h"
#include "lot/grille.h"
#include "lot/lignes.h"
#include "lot/sortie.h"
#include "storage/state_string.h"
#include "storage/sud_text.h"

namespace sudoku::lot {
namespace {

int Refuse(const std::string& fichier, const std::string& raison) {
  EcritTout(STDERR_FILENO, Montrable(fichier + ": " + raison) + "\n");
  return 1;
}

// A name from a line; a NUL at its beginning would make its line in a game file one of scores.
Texte Nom(std::string_view octets) {
  Texte nom = DepuisUtf8(octets);
  std::ranges::replace(nom, U'\0', U' ');
  return nom;
}

// What the lines of a text hold: games, each a state string with its name, and the grid's own text.
struct Contenu {
  std::optional<Texte> initiale;  // the first state string without a name
  std::vector<ClsPartie> parties = std::vector<ClsPartie>(1);
  std::string reste;
};

class Lecteur {
 public:
  explicit Lecteur(const Texte& symboles) : symboles_(symboles), etats_(jeu_, symboles) {}

  Contenu Partage(std::string_view octets) {
    constexpr std::string_view kMarque = "\xEF\xBB\xBF";
    if (octets.starts_with(kMarque)) octets.remove_prefix(kMarque.size());
    Contenu contenu;
    while (!octets.empty() && contenu.reste.size() <= DessinMax() &&
           contenu.parties.size() <= kEntreesMax + 1) {
      const std::size_t fin = std::min(octets.find('\n'), octets.size());
      Range(octets.substr(0, fin), contenu);
      octets.remove_prefix(std::min(fin + 1, octets.size()));
    }
    return contenu;
  }

  // Two characters a cell, the givens of the grid that this text draws; nothing where it draws none.
  std::optional<Texte> Initiale(const std::string& reste) const {
    if (reste.size() > DessinMax()) return std::nullopt;
    const std::optional<Texte> texte = DepuisUtf8Strict(reste);
    const auto cases = texte ? LitGrilleTexte(*texte, symboles_) : std::nullopt;
    if (!cases) return std::nullopt;
    Texte initiale;
    for (const Texte& valeur : *cases) (initiale += valeur.empty() ? Texte(U" ") : valeur) += U'0';
    return initiale;
  }

 private:
  void Range(std::string_view ligne, Contenu& contenu) {
    std::string_view entree = ligne.ends_with('\r') ? ligne.substr(0, ligne.size() - 1) : ligne;
    const std::size_t tabulation = entree.find('\t');
    const std::string_view champ = entree.substr(0, tabulation);
    const bool etats = EstChaineEtats(champ) && !etats_.Lit(champ);
    if (etats && tabulation != std::string_view::npos) {
      contenu.parties.push_back({Nom(entree.substr(tabulation + 1)), ChaineEtats(jeu_.VmGrille)});
    } else if (etats && !contenu.initiale) {
      contenu.initiale = ChaineInitiale(jeu_.VmGrille);
    } else if (!entree.starts_with('#') || Contient(symboles_, U"#")) {
      (contenu.reste += ligne.substr(0, DessinMax())) += '\n';
    }
  }

  std::size_t Cases() const { return symboles_.size() * symboles_.size(); }
  // Bytes of a grid with the widest frames and margins.
  std::size_t DessinMax() const { return 64 * (Cases() + 1000); }
  bool EstChaineEtats(std::string_view champ) const {
    if (champ.size() < 2 * Cases() || champ.size() > 2 * 4 * Cases()) return false;
    const std::optional<Texte> texte = DepuisUtf8Strict(champ);
    return texte && texte->size() == 2 * Cases();
  }

  Texte symboles_;
  GameState jeu_;
  LecteurGrille etats_;
};

std::string PasDeGrille(std::size_t cote) {
  const std::string n = std::to_string(cote);
  return "ce n'est pas une grille ; attendu : " + std::to_string(cote * cote) + " cases sur une ligne ou " +
         n + " lignes de " + n +
         ", un symbole ou « . », « 0 », « _ », « * » ou une espace chacune, avec ou sans cadre";
}

// The state string of a whole grid, without what a file may hold behind it; nothing where it is too short.
std::optional<TexteVue> Etats(TexteVue chaine, TexteVue symboles) {
  const std::size_t longueur = 2 * symboles.size() * symboles.size();
  if (chaine.size() < longueur) return std::nullopt;
  return chaine.substr(0, longueur);
}

// A grid as a line: one character a cell where that says everything, else the state string.
std::optional<std::string> Ligne(TexteVue chaine, TexteVue symboles) {
  const auto etats = Etats(chaine, symboles);
  if (!etats) return std::nullopt;
  std::vector<Texte> contenus;
  bool donnees = !Contient(symboles, U".");
  for (std::size_t i = 0; i < etats->size(); i += 2) {
    contenus.push_back((*etats)[i] == U' ' ? Texte() : Texte(1, (*etats)[i]));
    donnees = donnees && (*etats)[i + 1] == U'0';
  }
  return VersUtf8(donnees ? EcritGrilleTexte(contenus) : Texte(*etats));
}

}  // namespace

int Importe(const Appel& appel) {
  const std::string& fichier = appel.fichiers.front();
  std::string octets;
  if (const auto raison = LitTout(fichier, octets)) return Refuse(fichier, *raison);
  Lecteur lecteur(appel.symboles);
  const Contenu contenu = lecteur.Partage(octets);
  if (contenu.parties.size() > kEntreesMax + 1) return Refuse(fichier, "trop grand pour une partie");
  const std::optional<Texte> initiale = contenu.initiale ? contenu.initiale : lecteur.Initiale(contenu.reste);
  if (!initiale) return Refuse(fichier, PasDeGrille(appel.symboles.size()));
  const int erreur = EcritTout(
      STDOUT_FILENO, EcritSud(appel.symboles, *initiale, contenu.parties, std::vector<TypScore>(1)));
  return erreur == 0 ? 0 : Refuse("sortie standard", RaisonSysteme(erreur));
}

int Exporte(const Appel& appel) {
  const std::string& fichier = appel.fichiers.front();
  std::string octets;
  if (const auto raison = LitTout(fichier, octets)) return Refuse(fichier, *raison);
  const LectureSud lu = LitSud(octets);
  if (!lu.grille) return Refuse(fichier, VersUtf8(DescriptionErreur(*lu.erreur)));
  if (!TailleAcceptable(lu.VmValeurs->size()))
    return Refuse(fichier, "Choix incorrect pour les symboles de la grille");
  int statut = lu.erreur ? Refuse(fichier, VersUtf8(DescriptionErreur(*lu.erreur))) : 0;
  std::string lignes;
  if (const auto grille = Ligne(*lu.grille, *lu.VmValeurs)) {
    lignes += *grille + "\n";
  } else {
    statut = Refuse(fichier, "la grille est plus courte que ses symboles ne le demandent");
  }
  for (std::size_t i = 1; i < lu.VgParties.size(); ++i) {
    const std::string nom = VersUtf8(lu.VgParties[i].Nom);
    if (const auto etats = Etats(lu.VgParties[i].Grille, *lu.VmValeurs)) {
      lignes += VersUtf8(*etats) + "\t" + nom + "\n";
    } else {
      statut = Refuse(fichier, "la partie « " + nom + " » est plus courte que la grille");
    }
  }
  const int erreur = EcritSortie(lignes);
  return erreur == 0 ? statut : Refuse("sortie standard", RaisonSysteme(erreur));
}

}  // namespace sudoku::lot
