#include "scenario/session.h"

#include <algorithm>

#include "scenario/session_vue.h"

namespace sudoku {
namespace {

bool UnDe(TexteVue mot, std::initializer_list<TexteVue> mots) {
  return std::find(mots.begin(), mots.end(), mot) != mots.end();
}

// n a number, s a string, m a word, b a way to press a button, r an answer.
bool ConformeArgument(char32_t forme, const Mot& mot) {
  if (!mot.correct) return false;
  switch (forme) {
    case U's':
      return mot.chaine;
    case U'n':
      return !mot.chaine && LitNombre(mot.texte).has_value();
    case U'b':
      return !mot.chaine && UnDe(mot.texte, {U"souris", U"espace"});
    case U'r':
      return mot.chaine || UnDe(mot.texte, {U"ok", U"oui", U"non", U"annuler"});
    default:
      return !mot.chaine;
  }
}

}  // namespace

Session::Session(std::istream& entree, std::ostream& sortie, Fichiers& fichiers, const FabriqueScene& scene)
    : entree_(entree),
      sortie_(sortie),
      systeme_(sortie, fichiers, [this] { return Avance(); }),
      scene_(scene(systeme_)),
      programme_(scene_->LeSysteme()),
      modales_(programme_.Modales()) {}

void Session::Joue() {
  try {
    scene_->Joue([this] { return Avance(); });
  } catch (const FinDuProgramme&) {
    // The last line is printed.
  }
}

bool Session::Avance() {
  std::string ligne;
  while (std::getline(entree_, ligne)) {
    if (ligne.ends_with('\r')) ligne.pop_back();
    if (ligne.starts_with('#')) continue;
    const std::vector<Mot> mots = Decoupe(DepuisUtf8(ligne));
    if (mots.empty()) continue;
    sortie_ << "> " << ligne << '\n';
    if (const Refus refus = Execute(mots)) sortie_ << "! " << VersUtf8(*refus) << '\n';
    return true;
  }
  return false;
}

const std::vector<Session::Commande>& Session::Commandes() {
  static const std::vector<Commande> commandes = {
      {U"start", U"?s", &Session::Start, true},
      {U"now", U"s", &Session::Now, true},
      {U"registre", U"sss", &Session::Registre, true},
      {U"type", U"ns", &Session::Type},
      {U"focus", U"n", &Session::Focus},
      {U"annule", U"", &Session::Annule},
      {U"retablit", U"", &Session::Retablit},
      {U"colle", U"s", &Session::Colle},
      {U"key", U"n", &Session::Key},
      {U"tick", U"", &Session::Tick},
      {U"click", U"m", &Session::Click},
      {U"press", U"mb", &Session::Press},
      {U"release", U"mb", &Session::Release},
      {U"close", U"m", &Session::Close},
      {U"select", U"mn", &Session::Select},
      {U"edit", U"ms", &Session::Edit},
      {U"dblclick", U"m", &Session::DblClick},
      {U"answer", U"r", &Session::Answer},
  };
  return commandes;
}

// A "?" stands before an argument that may be missing.
bool Session::Conforme(TexteVue forme, const Arguments& arguments) {
  std::size_t lus = 0;
  bool facultatif = false;
  for (const char32_t lettre : forme) {
    if (lettre == U'?') {
      facultatif = true;
    } else if (lus < arguments.size()) {
      if (!ConformeArgument(lettre, arguments[lus++])) return false;
    } else if (!facultatif) {
      return false;
    }
  }
  return lus == arguments.size();
}

Session::Refus Session::Execute(const std::vector<Mot>& mots) {
  const Mot& premier = mots.front();
  const Arguments arguments(mots.begin() + 1, mots.end());
  const bool montre = !premier.chaine && premier.texte == U"show";
  const auto commande = std::find_if(Commandes().begin(), Commandes().end(), [&](const Commande& c) {
    return !premier.chaine && c.nom == premier.texte;
  });
  if (!montre && commande == Commandes().end()) return U"commande inconnue";
  if (!(montre ? SessionVue::Conforme(arguments) : Conforme(commande->forme, arguments))) {
    return U"commande incorrecte";
  }
  if (!partie_ && (montre || !commande->avantDepart)) return U"pas démarré";
  return montre ? Show(arguments) : (this->*commande->fait)(arguments);
}

}  // namespace sudoku
