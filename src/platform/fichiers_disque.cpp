#include "platform/fichiers_disque.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/erreur.h"

namespace sudoku {
namespace {

namespace fs = std::filesystem;

// A NUL can't be part of a path: cutting it there would name another file.
bool Nommable(TexteVue chemin) {
  return !chemin.empty() && chemin.find(U'\0') == TexteVue::npos;
}

class Descripteur {
 public:
  explicit Descripteur(int fd) : fd_(fd) {}
  Descripteur(const Descripteur&) = delete;
  Descripteur& operator=(const Descripteur&) = delete;
  ~Descripteur() {
    if (fd_ >= 0) ::close(fd_);
  }
  int Fd() const { return fd_; }
  bool Ferme() { return ::close(std::exchange(fd_, -1)) == 0; }

 private:
  int fd_;
};

bool EcritTout(int fd, std::string_view octets) {
  while (!octets.empty()) {
    const ssize_t n = ::write(fd, octets.data(), octets.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    octets.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

// Pipes and the like can't be flushed, and need not be.
bool Vide(int fd) {
  return ::fsync(fd) == 0 || errno == EINVAL || errno == EROFS;
}

class FichierDisque : public FichierEcrit {
 public:
  explicit FichierDisque(int fd) : fd_(fd) {}
  void Ecrit(std::string_view octets) override {
    if (!EcritTout(fd_.Fd(), octets)) throw Erreur(kAccesFichier);
  }
  void VideSurDisque() override {
    if (!Vide(fd_.Fd())) throw Erreur(kAccesFichier);
  }
  void Ferme() override {
    if (!fd_.Ferme()) throw Erreur(kAccesFichier);
  }

 private:
  Descripteur fd_;
};

}  // namespace

std::string FichiersDisque::Lit(TexteVue chemin) {
  if (!Nommable(chemin)) throw Erreur(kFichierIntrouvable);
  const Descripteur fd(::open(VersUtf8(chemin).c_str(), O_RDONLY | O_CLOEXEC));
  const bool absent = errno == ENOENT || errno == ENOTDIR;
  if (fd.Fd() < 0) throw Erreur(absent ? kFichierIntrouvable : kAccesFichier);
  std::string contenu;
  char tampon[65536];
  for (;;) {
    const ssize_t n = ::read(fd.Fd(), tampon, sizeof tampon);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) throw Erreur(kAccesFichier);
    if (n == 0) return contenu;
    contenu.append(tampon, static_cast<std::size_t>(n));
  }
}

std::unique_ptr<FichierEcrit> FichiersDisque::Cree(TexteVue chemin) {
  if (!Nommable(chemin)) throw Erreur(kAccesFichier);
  const int fd = ::open(VersUtf8(chemin).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (fd < 0) throw Erreur(kAccesFichier);
  return std::make_unique<FichierDisque>(fd);
}

void FichiersDisque::Copie(TexteVue de, TexteVue vers) {
  if (!Nommable(de) || !Nommable(vers)) throw Erreur(kAccesFichier);
  const Descripteur source(::open(VersUtf8(de).c_str(), O_RDONLY | O_CLOEXEC));
  struct stat droits = {};
  if (source.Fd() < 0 || ::fstat(source.Fd(), &droits) != 0) throw Erreur(kAccesFichier);
  if (!S_ISREG(droits.st_mode)) throw Erreur(kAccesFichier);  // a device may have no end
  std::string contenu;
  try {
    contenu = Lit(de);
  } catch (const Erreur&) {
    throw Erreur(kAccesFichier);
  }
  const std::string nom = VersUtf8(vers);
  Descripteur copie(::open(nom.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, droits.st_mode & 0777));
  if (copie.Fd() < 0) throw Erreur(kAccesFichier);
  if (EcritTout(copie.Fd(), contenu) && Vide(copie.Fd()) && copie.Ferme()) return;
  ::unlink(nom.c_str());
  throw Erreur(kAccesFichier);
}

void FichiersDisque::Supprime(TexteVue chemin) {
  if (!Nommable(chemin) || ::unlink(VersUtf8(chemin).c_str()) != 0) throw Erreur(kAccesFichier);
}

bool FichiersDisque::Existe(TexteVue chemin) {
  struct stat infos = {};
  return Nommable(chemin) && ::lstat(VersUtf8(chemin).c_str(), &infos) == 0;
}

bool FichiersDisque::EstFichier(TexteVue chemin) {
  struct stat infos = {};
  return Nommable(chemin) && ::stat(VersUtf8(chemin).c_str(), &infos) == 0 && !S_ISDIR(infos.st_mode);
}

Texte FichiersDisque::DossierCourant() {
  std::error_code code;
  const fs::path dossier = fs::current_path(code);
  return code ? Texte(U".") : DepuisUtf8(dossier.string());
}

}  // namespace sudoku
