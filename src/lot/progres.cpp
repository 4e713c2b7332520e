#include "lot/progres.h"

#include <unistd.h>

#include <cmath>
#include <cstdio>

#include "lot/sortie.h"
#include "text/texte.h"

namespace sudoku::lot {
namespace {

constexpr std::chrono::milliseconds kRythme(250);
constexpr std::string_view kEfface = "\r\x1b[K";

// 1234567 as "1 234 567".
std::string Groupe(std::int64_t nombre) {
  std::string chiffres = std::to_string(nombre);
  for (std::size_t i = chiffres.size(); i > 3; i -= 3) chiffres.insert(i - 3, 1, ' ');
  return chiffres;
}

std::string Duree(double secondes) {
  const std::int64_t s = std::llround(secondes);
  char texte[48];
  std::snprintf(texte, sizeof texte, "%lld:%02d:%02d", static_cast<long long>(s / 3600),
                static_cast<int>(s / 60 % 60), static_cast<int>(s % 60));
  return texte;
}

// Results that scroll by, or grids typed by hand, need no such line and would be broken up by it.
bool AQuiMontrer() {
  return isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO);
}

}  // namespace

Progres::Progres(std::optional<std::int64_t> octets) : octets_(octets) {
  if (AQuiMontrer()) veilleur_ = std::thread(&Progres::Veille, this);
}

Progres::~Progres() {
  if (!veilleur_.joinable()) return;
  {
    const std::lock_guard verrou(mutex_);
    fin_ = true;
  }
  reveil_.notify_one();
  veilleur_.join();
  if (montre_) EcritTout(STDERR_FILENO, kEfface);
}

void Progres::Message(std::string_view texte) {
  const std::lock_guard verrou(mutex_);
  EcritTout(STDERR_FILENO, std::string(montre_ ? kEfface : "") + Montrable(texte) + "\n");
  montre_ = false;
}

void Progres::Veille() {
  std::unique_lock verrou(mutex_);
  while (!reveil_.wait_for(verrou, kRythme, [this] { return fin_; })) {
    EcritTout(STDERR_FILENO, std::string(kEfface) + Etat());
    montre_ = true;
  }
}

std::string Progres::Etat() const {
  const std::int64_t grilles = grilles_.load(std::memory_order_relaxed);
  const std::int64_t lus = lus_.load(std::memory_order_relaxed);
  const double secondes = std::chrono::duration<double>(Horloge::now() - debut_).count();
  const auto rythme = static_cast<std::int64_t>(static_cast<double>(grilles) / secondes);
  std::string etat = Groupe(grilles) + " grille(s), " + Groupe(rythme) + " par seconde";
  if (octets_ && lus > 0 && lus <= *octets_) {
    etat += ", reste " + Duree(secondes * static_cast<double>(*octets_ - lus) / static_cast<double>(lus));
  }
  return etat;
}

}  // namespace sudoku::lot
