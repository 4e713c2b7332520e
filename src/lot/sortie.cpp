#include "lot/sortie.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>

#include "lot/lignes.h"
#include "text/texte.h"

namespace sudoku::lot {
namespace {

constexpr std::size_t kTampon = std::size_t{1} << 16;
constexpr std::chrono::milliseconds kDelai(20);

}  // namespace

int EcritTout(int fd, std::string_view texte) {
  while (!texte.empty()) {
    const ssize_t ecrits = write(fd, texte.data(), texte.size());
    if (ecrits >= 0) {
      texte.remove_prefix(static_cast<std::size_t>(ecrits));
    } else if (errno == EAGAIN) {
      pollfd attente{fd, POLLOUT, 0};
      poll(&attente, 1, -1);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

int EcritSortie(std::string_view texte) {
  static const bool terminal = isatty(STDOUT_FILENO) != 0;
  return EcritTout(STDOUT_FILENO, terminal ? Montrable(texte, "\n\t") : texte);
}

Sortie::Sortie() : veilleur_(&Sortie::Veille, this) {}

Sortie::~Sortie() {
  {
    const std::lock_guard verrou(mutex_);
    fin_ = true;
    PousseTampon();
  }
  reveil_.notify_one();
  veilleur_.join();
}

void Sortie::Ecrit(std::string_view texte) {
  bool premier = false;
  {
    const std::lock_guard verrou(mutex_);
    premier = tampon_.empty();
    tampon_ += texte;
    if (tampon_.size() >= kTampon) PousseTampon();
  }
  if (premier) reveil_.notify_one();
}

void Sortie::Pousse() {
  const std::lock_guard verrou(mutex_);
  PousseTampon();
}

void Sortie::PousseTampon() {
  const int erreur = EcritSortie(tampon_);
  tampon_.clear();
  if (erreur == 0) return;
  if (erreur != EPIPE) EcritTout(STDERR_FILENO, "sortie standard: " + RaisonSysteme(erreur) + "\n");
  std::_Exit(1);
}

void Sortie::Veille() {
  std::unique_lock verrou(mutex_);
  while (!fin_) {
    reveil_.wait(verrou, [this] { return fin_ || !tampon_.empty(); });
    reveil_.wait_for(verrou, kDelai, [this] { return fin_; });
    PousseTampon();
  }
}

}  // namespace sudoku::lot
