// The bulk command on the plain rules: same arguments, input and output as sudoku-lot (standard input only,
// one process), to compare the two line by line.
#include <iostream>

#include "plain/plain_engine.h"

namespace sudoku::plain {
namespace {

struct Appel {
  bool expliquer = false, guess = true;
  int passes = 2;
  Texte symboles = U"123456789";
};

bool Vide(char32_t c, const Texte& symboles) {
  return (c == U'.' || c == U'0' || c == U' ') && symboles.find(c) == Texte::npos;
}

// Puts the line's cells into the grid; false if the line is no grid.
bool Charge(Jeu& jeu, TexteVue ligne) {
  const std::size_t cases = jeu.VmGrille.size() - 1;
  const std::size_t pas = ligne.size() / cases;
  if (ligne.size() != cases && ligne.size() != 2 * cases) return false;
  for (std::size_t i = 0; i < cases; ++i) {
    const TexteVue valeur = ligne.substr(i * pas, 1);
    const char32_t etat = pas == 2 ? ligne[i * 2 + 1] : U'0';
    const bool vide = pas == 2 ? valeur == U" " : Vide(valeur[0], jeu.VmValeurs);
    if (!vide && !Contient(jeu.VmValeurs, valeur)) return false;
    if (etat < U'0' || etat > (vide ? U'1' : U'3')) return false;
    jeu.VmGrille[i + 1]->Load(vide ? TexteVue() : valeur, static_cast<int>(etat - U'0'));
  }
  return true;
}

std::string Json(TexteVue texte) {
  Texte json = U"\"";
  for (const char32_t c : texte) {
    if (c == U'"' || c == U'\\') json += U'\\';
    json += c;
  }
  return VersUtf8(json += U'"');
}

std::string Phrases(TexteVue explications) {
  std::string json;
  for (std::size_t fin; (fin = explications.find(U"\r\n")) != TexteVue::npos;
       explications.remove_prefix(fin + 2)) {
    json += (json.empty() ? "" : ",") + Json(explications.substr(0, fin));
  }
  return json;
}

void Explique(Jeu& jeu, int passes) {
  const int verdict = jeu.Evaluation(jeu.VmGrille, passes);
  std::cout << "{\"verdict\":" << verdict << ",\"mode\":" << jeu.VgEtat << ",\"cases\":[";
  for (std::size_t i = 1; i < jeu.VmGrille.size(); ++i) {
    const ClsPos& c = *jeu.VmGrille[i];
    std::cout << (i > 1 ? "," : "") << "{\"index\":" << i << ",\"valeur\":" << Json(c.ValeurSaisie())
              << ",\"etat\":" << c.Etat << ",\"possible\":" << Json(c.Possible)
              << ",\"sure\":" << Json(c.SolutionSure) << ",\"poss\":" << Json(c.SolutionPoss)
              << ",\"explications\":[" << Phrases(c.Explications) << "]}";
  }
  std::cout << "]}\n";
}

void Resout(Jeu& jeu, const std::string& lue, bool guess) {
  std::vector<Texte> messages;
  jeu.Message = [&messages](TexteVue texte) { messages.emplace_back(texte); };
  jeu.JeuAuto(true, guess);
  std::string resultat;
  for (std::size_t i = 1; i < jeu.VmGrille.size(); ++i) {
    const Texte& valeur = jeu.VmGrille[i]->ValeurSaisie();
    resultat += valeur.empty() ? "." : VersUtf8(valeur);
  }
  const std::string message = VersUtf8(messages.back());
  long long comptes[2] = {0, 0};
  std::sscanf(message.c_str(), "Résolu avec %lld supposition(s), dont %lld", &comptes[0], &comptes[1]);
  std::cout << lue << '\t' << resultat << '\t' << comptes[0] << '\t' << comptes[1] << '\t'
            << messages.size() - 1 << '\t' << message << std::endl;
}

bool Traite(const Appel& appel, const std::string& lue) {
  Jeu jeu;
  if (!jeu.JeuVierge(appel.symboles) || !Charge(jeu, DepuisUtf8(lue))) return false;
  jeu.VgEtat = appel.expliquer && appel.passes == 1 ? kEntree : kJeu;
  if (appel.expliquer) {
    Explique(jeu, appel.passes);
  } else {
    Resout(jeu, lue, appel.guess);
  }
  return true;
}

int Lot(const Appel& appel) {
  bool bien = true;
  std::string ligne;
  for (int numero = 1; std::getline(std::cin, ligne); ++numero) {
    if (ligne.ends_with('\r')) ligne.pop_back();
    if (ligne.empty() || ligne[0] == '#') continue;
    if (Traite(appel, ligne.substr(0, ligne.find('\t')))) continue;
    std::cerr << "-:" << numero << ": ligne incorrecte\n";
    bien = false;
  }
  return bien ? 0 : 1;
}

}  // namespace
}  // namespace sudoku::plain

int main(int argc, char** argv) {
  sudoku::plain::Appel appel;
  for (int i = 1; i < argc; ++i) {
    const std::string mot = argv[i];
    if (mot == "expliquer") appel.expliquer = true;
    if (mot == "--deduction") appel.guess = false;
    if (mot == "--symboles" && i + 1 < argc) appel.symboles = sudoku::DepuisUtf8(argv[++i]);
    if (mot == "--passes" && i + 1 < argc) appel.passes = std::stoi(argv[++i]);
  }
  return sudoku::plain::Lot(appel);
}
