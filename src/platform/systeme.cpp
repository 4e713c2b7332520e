#include "platform/systeme.h"

#include <algorithm>

namespace sudoku {
namespace {

// Writes `texte` and its closing NUL over the start of the buffer, as far as it reaches.
void Pose(Texte& tampon, TexteVue texte) {
  const std::size_t longueur = std::min(texte.size(), tampon.size());
  std::copy_n(texte.begin(), longueur, tampon.begin());
  if (longueur < tampon.size()) tampon[longueur] = U'\0';
}

}  // namespace

void Repond(DemandeFichier& demande, TexteVue chemin) {
  if (chemin.empty() || chemin.size() > static_cast<std::size_t>(demande.nMaxFile)) return;
  const std::size_t barre = chemin.find_last_of(U"/\\");
  const std::size_t nom = barre == TexteVue::npos ? 0 : barre + 1;
  const std::size_t point = chemin.rfind(U'.');
  const bool extension = point != TexteVue::npos && point >= nom;
  Pose(demande.lpstrFile, chemin);
  Pose(demande.lpstrFileTitle, chemin.substr(nom));
  demande.nFileOffset = static_cast<std::int16_t>(nom);
  demande.nFileExtension = static_cast<std::int16_t>(extension ? point + 1 : 0);
}

}  // namespace sudoku
