#include "headless/systeme_sans_ecran.h"

#include "headless/ecriture.h"

namespace sudoku {
namespace {

constexpr std::uint32_t kHkeyLocalMachine = 0x80000002;
constexpr std::uint32_t kTypeTexte = 1;
constexpr std::int64_t kAn2000 = 946'684'800'000;  // 2000-01-01 00:00:00

TexteVue NomDe(GenreBoite genre) {
  switch (genre) {
    case GenreBoite::kMessage:
      return U"message";
    case GenreBoite::kQuestion:
      return U"question";
    case GenreBoite::kSaisie:
      return U"saisie";
    case GenreBoite::kFichier:
      return U"fichier";
    case GenreBoite::kFenetre:
      break;
  }
  return U"fenetre";
}

// The piece of a filter list from `debut` to its NUL; `debut` moves behind it.
TexteVue Morceau(TexteVue liste, std::size_t& debut) {
  const TexteVue reste = liste.substr(std::min(debut, liste.size()));
  const TexteVue morceau = reste.substr(0, reste.find(U'\0'));
  debut += morceau.size() + 1;
  return morceau;
}

}  // namespace

SystemeSansEcran::SystemeSansEcran(std::ostream& sortie, Fichiers& fichiers, std::function<bool()> avance)
    : sortie_(sortie), fichiers_(fichiers), avance_(std::move(avance)), maintenant_(kAn2000) {}

void SystemeSansEcran::Ecrit(TexteVue ligne) {
  sortie_ << VersUtf8(ligne) << '\n';
}

void SystemeSansEcran::Attend(Boite& boite) {
  // The end of the program leaves through here: the box goes with it.
  struct Garde {
    std::vector<Boite*>& boites;
    ~Garde() { boites.pop_back(); }
  };
  boites_.push_back(&boite);
  const Garde garde{boites_};
  if (attente_) return attente_(boite);
  while (!boite.close && !(boite.fenetre != nullptr && boite.fenetre->fermee)) {
    if (avance_()) continue;
    EcritFinDans(boite);
    break;
  }
}

void SystemeSansEcran::EcritFinDans(const Boite& boite) {
  Ecrit(U"! fin du scénario dans " + Texte(NomDe(boite.genre)));
}

void SystemeSansEcran::Message(TexteVue texte, TexteVue titre) {
  Ecrit(U"message " + Cite(texte) + (titre.empty() ? Texte() : U" titre " + Cite(titre)));
  Boite boite{.genre = GenreBoite::kMessage};
  Attend(boite);
}

bool SystemeSansEcran::Question(TexteVue texte) {
  Ecrit(U"question " + Cite(texte) + U" defaut non");
  Boite boite{.genre = GenreBoite::kQuestion};
  Attend(boite);
  return boite.oui;
}

Texte SystemeSansEcran::Saisie(TexteVue texte, TexteVue titre, TexteVue defaut) {
  Ecrit(U"saisie " + Cite(texte) + U" titre " + Cite(titre) + U" defaut " + Cite(defaut));
  Boite boite{.genre = GenreBoite::kSaisie};
  Attend(boite);
  return SansControles(boite.texte);
}

void SystemeSansEcran::Fichier(DemandeFichier& demande) {
  std::size_t debut = 0;
  const TexteVue description = Morceau(demande.lpstrFilter, debut);
  const TexteVue motif = Morceau(demande.lpstrFilter, debut);
  Ecrit(U"fichier titre " + Cite(demande.lpstrTitle) + U" dossier " + Cite(demande.lpstrInitialDir) +
        U" filtre " + Cite(description) + U" " + Cite(motif));
  Boite boite{.genre = GenreBoite::kFichier};
  Attend(boite);
  Repond(demande, boite.texte);
}

void SystemeSansEcran::MontreModale(Fenetre& fenetre) {
  const Texte nom = DepuisUtf8(fenetre.Name);
  Ecrit(U"fenetre " + nom);
  Boite boite{.genre = GenreBoite::kFenetre, .fenetre = &fenetre};
  Attend(boite);
  Ecrit(U"ferme " + nom);
}

void SystemeSansEcran::Fin() {
  Ecrit(U"quitte");
  throw FinDuProgramme();
}

Fenetre* SystemeSansEcran::FenetreModale() {
  for (auto boite = boites_.rbegin(); boite != boites_.rend(); ++boite) {
    if ((*boite)->fenetre != nullptr) return (*boite)->fenetre;
  }
  return nullptr;
}

SystemeSansEcran::Cle SystemeSansEcran::CleDe(TexteVue cle, TexteVue valeur) {
  Cle resultat{cle, valeur};
  for (Texte* texte : {&resultat.first, &resultat.second}) {
    for (char32_t& c : *texte) c = Minuscule(c);
  }
  return resultat;
}

void SystemeSansEcran::MetRegistre(TexteVue cle, TexteVue valeur, TexteVue texte) {
  registre_[CleDe(cle, valeur)] = texte;
}

std::optional<ValeurRegistre> SystemeSansEcran::Registre(std::uint32_t racine, TexteVue cle,
                                                         TexteVue valeur) {
  const auto place = registre_.find(CleDe(cle, valeur));
  if (racine != kHkeyLocalMachine || place == registre_.end()) return std::nullopt;
  return ValeurRegistre{.type = kTypeTexte, .donnees = place->second};
}

bool SystemeSansEcran::Lance(TexteVue chemin) {
  if (!fichiers_.EstFichier(chemin)) return false;
  Ecrit(U"lance " + Cite(chemin));
  return true;
}

}  // namespace sudoku
