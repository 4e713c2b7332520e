#pragma once

#include <string_view>

namespace sudoku {

// What --help prints.
inline constexpr std::string_view kAide =
    R"(Usage : sudoku-scenario [FICHIER]

Joue la session écrite dans FICHIER (sinon sur l'entrée standard), sans écran, et écrit ce qu'une personne verrait.
Une commande par ligne :

  start ["ARGUMENTS"]               lance le jeu
  click NOM                         clique l'article de menu, le bouton ou la case à cocher
  type I "TEXTE"                    écrit dans la case I
  focus I                           va à la case I
  annule, retablit                  annule, rétablit une saisie
  colle "TEXTE"                     colle une grille entière
  key CODE                          appuie sur une touche (37 à 40 : les flèches)
  press NOM souris|espace           tient un bouton ; release NOM souris|espace le relâche
  close NOM                         ferme la fenêtre
  tick                              une seconde du chronomètre
  now "AAAA-MM-JJ hh:mm:ss"         règle l'heure
  answer ok|oui|non|annuler|"TEXTE" répond à la boîte ouverte
  select NOM P                      choisit la position P d'une liste
  edit NOM "TEXTE"                  écrit dans le champ d'une liste
  dblclick NOM                      double clic dans une liste
  registre "CLÉ" "VALEUR" "TEXTE"   met un texte dans le registre
  show QUOI                         montre state, grid, etats, cell I, menus, scores, library, boxes,
                                    file "CHEMIN" ou un élément par son nom

Tout le reste se lit dans man sudoku-scenario.
)";

}  // namespace sudoku
