#include "lot/equipe.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace sudoku::lot {
namespace {

constexpr std::size_t kPostesParOuvrier = 64;
constexpr std::size_t kPriseMax = 16;                   // lines that a worker takes at once
constexpr std::size_t kRetenue = std::size_t{1} << 20;  // of an answer whose turn hasn't come

}  // namespace

Equipe::Equipe(int ouvriers, const Atelier& atelier, std::function<void(const Poste&)> livre,
               std::function<void(std::string_view)> coule)
    : livre_(std::move(livre)),
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
  {
    const std::lock_guard verrou(mutex_);
    fin_ = true;
  }
  aFaire_.notify_all();
  for (std::thread& fil : fils_) fil.join();
}

Poste& Equipe::Prochain() {
  if (confies_ - livres_ >= postes_.size()) {
    // Half the ring is let go empty, so that nobody has to be woken for every line.
    std::unique_lock verrou(mutex_);
    reveil_ = confies_ - postes_.size() / 2;
    place_.wait(verrou, [this] { return livres_ >= reveil_; });
    reveil_ = kJamais;
  }
  return Place(confies_);
}

void Equipe::Confie() {
  {
    const std::lock_guard verrou(mutex_);
    ++confies_;
  }
  aFaire_.notify_one();
}

// livres_ <= pris_ <= confies_ <= livres_ + places: a place is the reader's until its line is handed over,
// one worker's until it is finished, and then whoever's delivers. A worker takes half of its equal share of
// what waits, so that nobody holds many lines while another runs dry, and many at once where many wait.
void Equipe::Travaille(Ouvrier& ouvrier) {
  std::unique_lock verrou(mutex_);
  for (;;) {
    aFaire_.wait(verrou, [this] { return fin_ || pris_ < confies_; });
    if (pris_ == confies_) return;
    const std::size_t premier = pris_;
    const std::size_t part = (confies_ - pris_) * kPostesParOuvrier / (2 * postes_.size());
    pris_ += std::clamp<std::size_t>(part, 1, kPriseMax);
    const std::size_t dernier = pris_;
    verrou.unlock();
    for (std::size_t i = premier; i < dernier; ++i) {
      Poste& poste = Place(i);
      poste.reponse.coule = [this, i](Reponse& reponse) { Coule(i, reponse); };
      poste.Occupe(ouvrier);
      poste.fini = true;
      Livre();
    }
    verrou.lock();
  }
}

// An answer may grow beyond all bounds, and waits for its turn before it does. Every worker takes its lines
// in order, so that the one whose turn it is never waits.
void Equipe::Coule(std::size_t numero, Reponse& reponse) {
  if (livres_ != numero && reponse.sortie.size() < kRetenue) return;
  for (std::size_t livres = livres_; livres != numero; livres = livres_) livres_.wait(livres);
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
      poste.fini = false;
      ++livres_;
      livres_.notify_all();
    }
    if (livres_ < reveil_) continue;
    { const std::lock_guard verrou(mutex_); }  // it has made its test by now, or sleeps
    place_.notify_one();
  }
}

}  // namespace sudoku::lot
