#include "platform/erreur.h"

namespace sudoku {

TexteVue DescriptionErreur(int numero) {
  switch (numero) {
    case kArgumentIncorrect:
      return U"Argument ou appel de procédure incorrect";
    case kIndiceHorsSelection:
      return U"L'indice n'appartient pas à la sélection";
    case kTypeIncompatible:
      return U"Incompatibilité de type";
    case kFichierIntrouvable:
      return U"Fichier introuvable";
    case kFinDeFichier:
      return U"L'entrée dépasse la fin de fichier";
    case kAccesFichier:
      return U"Erreur d'accès au chemin/fichier";
    default:
      return {};
  }
}

Erreur::Erreur(NumeroErreur numero, TexteVue suite)
    : numero_(numero), description_(Texte(DescriptionErreur(numero)) + Texte(suite)) {}

}  // namespace sudoku
