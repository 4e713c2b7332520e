// What the commands of a session do, and which of them are refused.

#include <algorithm>
#include <limits>

#include "scenario/session.h"
#include "scenario/session_vue.h"

namespace sudoku {
namespace {

const Texte kModale = U"fenêtre modale ouverte";

// Whether the command acts on what the window calls `nom`, an element, a menu item or the window itself.
bool AgitSur(TexteVue commande, Fenetre& fenetre, TexteVue nom) {
  const std::string octets = VersUtf8(nom);
  if (commande == U"close") return fenetre.Name == octets;
  if (const ArticleMenu* article = fenetre.TrouveArticle(octets)) {
    return commande == U"click" && article->Click != nullptr;
  }
  const Element* element = fenetre.Trouve(octets);
  if (element == nullptr) return false;
  const Genre genre = element->genre;
  if (commande == U"click") return genre == Genre::kBouton || genre == Genre::kCaseACocher;
  if (commande == U"press" || commande == U"release") return element->MouseDown != nullptr;
  return genre == Genre::kChampListe || (genre == Genre::kListe && commande != U"edit");
}

// What the game says of an act that it didn't carry out; empty: it did.
std::optional<Texte> Dit(Texte raison) {
  if (raison.empty()) return std::nullopt;
  return raison;
}

int Entier(const Mot& mot) {
  return static_cast<int>(std::clamp<std::int64_t>(
      LitNombre(mot.texte)->valeur, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

}  // namespace

Session::Refus Session::SansModale() {
  if (systeme_.Dessus() != nullptr) return kModale;
  return {};
}

Session::Refus Session::CaseDuPlateau(const Mot& mot, int& Index) {
  if (const Refus refus = SansModale()) return refus;
  Index = Entier(mot);
  if (Index < 1 || Index > Principale().plateau.Cases()) {
    return U"pas de case " + LitNombre(mot.texte)->texte;
  }
  return {};
}

// The window of the element or window `nom`, if the command can act there.
Session::Cible Session::Vise(TexteVue commande, TexteVue nom) {
  const auto possede = [&](Fenetre& fenetre) { return AgitSur(commande, fenetre, nom); };
  const auto reste = [&](Fenetre* fenetre) { return possede(*fenetre); };
  if (std::ranges::none_of(systeme_.Fenetres(), reste) && std::ranges::none_of(modales_, possede)) {
    return {.refus = U"pas d'élément " + Texte(nom)};
  }
  if (const Boite* dessus = systeme_.Dessus()) {
    if (dessus->fenetre == nullptr || !possede(*dessus->fenetre)) return {.refus = kModale};
    return {.fenetre = dessus->fenetre};
  }
  for (Fenetre* fenetre : systeme_.Fenetres()) {
    if (possede(*fenetre) && fenetre->Visible) return {.fenetre = fenetre};
  }
  return {.refus = U"pas visible"};
}

Session::Cible Session::ViseListe(TexteVue commande, TexteVue nom) {
  Cible cible = Vise(commande, nom);
  if (cible.refus) return cible;
  cible.liste = cible.fenetre->Trouve(VersUtf8(nom));
  if (!cible.liste->Visible) cible.refus = U"pas visible";
  return cible;
}

Session::Refus Session::Start(const Arguments& a) {
  if (partie_) return U"déjà démarré";
  partie_ = true;
  scene_->Demarre([&] { programme_.Demarre(a.empty() ? Texte() : a[0].texte); });
  return {};
}

Session::Refus Session::Now(const Arguments& a) {
  const auto instant = LitInstant(a[0].texte);
  if (!instant) return U"date incorrecte";
  systeme_.MetHeure(*instant);
  return {};
}

Session::Refus Session::Registre(const Arguments& a) {
  systeme_.MetRegistre(a[0].texte, a[1].texte, a[2].texte);
  return {};
}

Session::Refus Session::Type(const Arguments& a) {
  int Index = 0;
  if (const Refus refus = CaseDuPlateau(a[0], Index)) return refus;
  if (Principale().plateau.TxtCase(Index).Locked) return U"verrouillé";
  scene_->Saisit(Principale(), Index, a[1].texte);
  return {};
}

Session::Refus Session::Focus(const Arguments& a) {
  int Index = 0;
  if (const Refus refus = CaseDuPlateau(a[0], Index)) return refus;
  scene_->Focus(Principale(), Index);
  return {};
}

Session::Refus Session::Annule(const Arguments&) {
  if (const Refus refus = SansModale()) return refus;
  return Dit(scene_->Annule(Principale()));
}

Session::Refus Session::Retablit(const Arguments&) {
  if (const Refus refus = SansModale()) return refus;
  return Dit(scene_->Retablit(Principale()));
}

Session::Refus Session::Colle(const Arguments& a) {
  if (const Refus refus = SansModale()) return refus;
  return Dit(scene_->Colle(Principale(), a[0].texte));
}

Session::Refus Session::Key(const Arguments& a) {
  const Boite* dessus = systeme_.Dessus();
  if (dessus != nullptr && dessus->fenetre == nullptr) return kModale;
  scene_->Touche(dessus == nullptr ? Principale() : *dessus->fenetre, Entier(a[0]));
  return {};
}

Session::Refus Session::Tick(const Arguments&) {
  if (const Refus refus = SansModale()) return refus;
  Minuterie& Tmr = *Principale().TrouveMinuterie("Tmr");
  if (!Tmr.Enabled) return U"Tmr désactivé";
  scene_->Sonne(Tmr);
  return {};
}

Session::Refus Session::Click(const Arguments& a) {
  const Cible cible = Vise(U"click", a[0].texte);
  if (cible.refus) return cible.refus;
  const std::string nom = VersUtf8(a[0].texte);
  if (ArticleMenu* article = cible.fenetre->TrouveArticle(nom)) {
    if (!article->Enabled) return U"désactivé";
    scene_->Choisit(*cible.fenetre, *article);
  } else {
    scene_->Clique(*cible.fenetre, *cible.fenetre->Trouve(nom));
  }
  return {};
}

Session::Refus Session::Press(const Arguments& a) {
  const Cible cible = Vise(U"press", a[0].texte);
  if (cible.refus) return cible.refus;
  scene_->Presse(*cible.fenetre, *cible.fenetre->Trouve(VersUtf8(a[0].texte)), a[1].texte == U"souris");
  return {};
}

Session::Refus Session::Release(const Arguments& a) {
  const Cible cible = Vise(U"release", a[0].texte);
  if (cible.refus) return cible.refus;
  scene_->Relache(*cible.fenetre, *cible.fenetre->Trouve(VersUtf8(a[0].texte)), a[1].texte == U"souris");
  return {};
}

Session::Refus Session::Close(const Arguments& a) {
  const Cible cible = Vise(U"close", a[0].texte);
  if (cible.refus) return cible.refus;
  if (!cible.fenetre->ControlBox) return U"désactivé";
  scene_->Ferme(*cible.fenetre);
  return {};
}

Session::Refus Session::Select(const Arguments& a) {
  const Cible cible = ViseListe(U"select", a[0].texte);
  if (cible.refus) return cible.refus;
  const int p = Entier(a[1]);
  if (p < -1 || p >= static_cast<int>(cible.liste->items.size())) {
    return U"pas de position " + LitNombre(a[1].texte)->texte;
  }
  scene_->Selectionne(*cible.fenetre, *cible.liste, p);
  return {};
}

Session::Refus Session::Edit(const Arguments& a) {
  const Cible cible = ViseListe(U"edit", a[0].texte);
  if (cible.refus) return cible.refus;
  scene_->Edite(*cible.fenetre, *cible.liste, a[1].texte);
  return {};
}

Session::Refus Session::DblClick(const Arguments& a) {
  const Cible cible = ViseListe(U"dblclick", a[0].texte);
  if (cible.refus) return cible.refus;
  scene_->DoubleClique(*cible.fenetre, *cible.liste);
  return {};
}

Session::Refus Session::Answer(const Arguments& a) {
  Boite* boite = systeme_.Dessus();
  if (boite == nullptr || boite->fenetre != nullptr) return U"rien à répondre";
  const TexteVue mot = a[0].chaine ? TexteVue() : TexteVue(a[0].texte);
  bool juste = false;
  switch (boite->genre) {
    case GenreBoite::kMessage:
      juste = mot == U"ok";
      break;
    case GenreBoite::kQuestion:
      juste = mot == U"oui" || mot == U"non";
      boite->oui = mot == U"oui";
      break;
    default:
      juste = a[0].chaine || mot == U"annuler";
      boite->texte = a[0].chaine ? a[0].texte : Texte();
  }
  if (!juste) return U"réponse incorrecte";
  boite->close = true;
  return {};
}

Session::Refus Session::Show(const Arguments& a) {
  return SessionVue(programme_, systeme_, sortie_).Montre(a);
}

}  // namespace sudoku
