#include "lot/equipe.h"

#include <system_error>
#include <utility>

namespace sudoku::lot {
namespace {

constexpr std::size_t kPostesParOuvrier = 512;
constexpr std::size_t kRetenue = std::size_t{1} << 24;  // of the answer whose turn is next
constexpr std::size_t kGarde = std::size_t{1} << 14;    // of what a place keeps for the line to come

void Allege(std::string& texte) {
  if (texte.capacity() > kGarde) std::string().swap(texte);
}

}  // namespace

Equipe::Equipe(int ouvriers, const Atelier& atelier, Alimentation lit,
               std::function<void(const Poste&)> livre, std::function<void(std::string_view)> coule)
    : lit_(std::move(lit)),
      livre_(std::move(livre)),
      coule_(std::move(coule)),
      postes_(kPostesParOuvrier * static_cast<std::size_t>(ouvriers)) {
  for (int i = 0; i < ouvriers; ++i) {
    ouvriers_.push_back(atelier());
    try {
      fils_.emplace_back(&Equipe::Travaille, this, std::ref(*ouvriers_.back()));
    } catch (const std::system_error&) {
      if (fils_.empty()) throw;
      return;
    }
  }
}

Equipe::~Equipe() {
  for (std::thread& fil : fils_) fil.join();
}

// The next lines, which are read into their places; none: there are no more. livres_ <= lus_ <= livres_ +
// places: a place is its worker's until the line is finished, and then whoever's delivers. The one whose turn
// it is reads nothing before it has delivered, so that a full ring gets emptied.
Equipe::Prise Equipe::Prend() {
  const std::lock_guard verrou(lecture_);
  const auto pleine = [this](std::size_t livres) { return lus_ - livres >= postes_.size(); };
  for (std::size_t livres = livres_; pleine(livres); livres = livres_) livres_.wait(livres);
  const std::size_t debut = lus_;
  while (!fin_ && !pleine(livres_) && lit_(Place(lus_), lus_ != debut)) ++lus_;
  fin_ = lus_ == debut;
  return {debut, lus_};
}

void Equipe::Travaille(Ouvrier& ouvrier) {
  for (Prise prise = Prend(); prise.debut != prise.fin; prise = Prend()) {
    for (std::size_t numero = prise.debut; numero != prise.fin; ++numero) {
      Poste& poste = Place(numero);
      poste.reponse.coule = [this, numero](Reponse& reponse) { Coule(numero, reponse); };
      poste.Occupe(ouvrier);
      poste.fini = true;
      Livre();
    }
  }
}

// An answer may grow beyond all bounds, and waits for its turn before it does: the sooner the more are before
// it, so that all that wait hold little more than a few of the next.
void Equipe::Coule(std::size_t numero, Reponse& reponse) {
  std::size_t livres = livres_;
  if (livres != numero && reponse.sortie.size() < kRetenue / (numero - livres)) return;
  for (; livres != numero; livres = livres_) livres_.wait(livres);
  coule_(reponse.sortie);
  reponse.sortie.clear();
}

// Delivers the finished lines that are next in order. Whoever finds another one at it leaves: that one looks
// again after it has let go.
void Equipe::Livre() {
  while (Place(livres_).fini) {
    const std::unique_lock tour(livraison_, std::try_to_lock);
    if (!tour) return;
    while (Place(livres_).fini) {
      Poste& poste = Place(livres_);
      livre_(poste);
      Allege(poste.champ);
      Allege(poste.reponse.sortie);
      poste.fini = false;
      ++livres_;
      livres_.notify_all();
    }
  }
}

}  // namespace sudoku::lot
