#include "platform/fichiers_disque.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <span>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/chemin.h"
#include "platform/erreur.h"

namespace sudoku {
namespace {

namespace fs = std::filesystem;

// A NUL can't be part of a path: cutting it there would name another file.
bool Nommable(TexteVue chemin) {
  return chemin.find(U'\0') == TexteVue::npos;
}

class Descripteur {
 public:
  explicit Descripteur(int fd) : fd_(fd) {}
  Descripteur(Descripteur&& autre) noexcept : fd_(std::exchange(autre.fd_, -1)) {}
  Descripteur& operator=(Descripteur&&) = delete;
  ~Descripteur() {
    if (fd_ >= 0) ::close(fd_);
  }
  int Fd() const { return fd_; }
  bool Ouvert() const { return fd_ >= 0; }
  bool Ferme() { return ::close(std::exchange(fd_, -1)) == 0; }

 private:
  int fd_;
};

// Opens regular files only: pipes and devices may have no end, and opening one may wait for ever. Where it
// fails, errno says why.
Descripteur OuvreRegulier(const std::string& chemin, int mode, struct stat& infos) {
  Descripteur fd(::open(chemin.c_str(), mode | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666));
  if (!fd.Ouvert()) return fd;
  if (::fstat(fd.Fd(), &infos) == 0 && S_ISREG(infos.st_mode)) return fd;
  fd.Ferme();
  errno = EINVAL;
  return fd;
}

bool Absent(int code) {
  return code == ENOENT || code == ENOTDIR;
}

// As read(2), past interruptions.
ssize_t LitMorceau(int fd, std::span<char> tampon) {
  for (;;) {
    const ssize_t n = ::read(fd, tampon.data(), tampon.size());
    if (n >= 0 || errno != EINTR) return n;
  }
}

bool EcritTout(int fd, std::string_view octets) {
  while (!octets.empty()) {
    const ssize_t n = ::write(fd, octets.data(), octets.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return false;
    octets.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

bool CopieTout(int de, int vers) {
  std::vector<char> tampon(std::size_t{1} << 16);
  for (;;) {
    const ssize_t n = LitMorceau(de, tampon);
    if (n <= 0) return n == 0;
    if (!EcritTout(vers, {tampon.data(), static_cast<std::size_t>(n)})) return false;
  }
}

// Puts the names of the folder that `chemin` lies in on the disk. A folder that may be used but not read, and
// a file system that has no such operation, count as done.
bool DossierSurDisque(const std::string& chemin) {
  const std::size_t barre = chemin.rfind('/');
  const std::string dossier = barre == std::string::npos ? "." : chemin.substr(0, barre + 1);
  const Descripteur fd(::open(dossier.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!fd.Ouvert()) return errno == EACCES;
  return ::fsync(fd.Fd()) == 0 || errno == EINVAL;
}

class FichierDisque : public FichierEcrit {
 public:
  FichierDisque(Descripteur fd, std::string chemin, bool neuf)
      : fd_(std::move(fd)), chemin_(std::move(chemin)), neuf_(neuf) {}
  bool Neuf() const override { return neuf_; }
  std::int64_t Taille() override {
    struct stat infos = {};
    Exige(::fstat(fd_.Fd(), &infos) == 0);
    return infos.st_size;
  }
  void Coupe(std::int64_t taille) override { Exige(::ftruncate(fd_.Fd(), taille) == 0); }
  void Ecrit(std::string_view octets) override { Exige(EcritTout(fd_.Fd(), octets)); }
  void VideSurDisque() override { Exige(::fsync(fd_.Fd()) == 0 && (!neuf_ || DossierSurDisque(chemin_))); }
  void Ferme() override { Exige(fd_.Ferme()); }

 private:
  static void Exige(bool reussi) {
    if (!reussi) throw Erreur(kAccesFichier);
  }
  Descripteur fd_;
  std::string chemin_;
  bool neuf_;
};

}  // namespace

std::string FichiersDisque::Lit(TexteVue chemin) {
  if (!Nommable(chemin)) throw Erreur(kFichierIntrouvable);
  struct stat infos = {};
  const Descripteur fd = OuvreRegulier(VersChemin(chemin), O_RDONLY, infos);
  if (!fd.Ouvert()) throw Erreur(Absent(errno) ? kFichierIntrouvable : kAccesFichier);
  if (infos.st_size > kOctetsMax) throw Erreur(kAccesFichier);
  std::string contenu;
  contenu.reserve(static_cast<std::size_t>(infos.st_size));
  std::vector<char> tampon(std::size_t{1} << 16);
  for (;;) {
    const ssize_t n = LitMorceau(fd.Fd(), tampon);
    if (n < 0 || contenu.size() > static_cast<std::size_t>(kOctetsMax)) throw Erreur(kAccesFichier);
    if (n == 0) return contenu;
    contenu.append(tampon.data(), static_cast<std::size_t>(n));
  }
}

std::unique_ptr<FichierEcrit> FichiersDisque::Ouvre(TexteVue chemin) {
  if (!Nommable(chemin)) throw Erreur(kAccesFichier);
  const std::string nom = VersChemin(chemin);
  struct stat infos = {};
  Descripteur ancien = OuvreRegulier(nom, O_WRONLY, infos);
  if (ancien.Ouvert()) return std::make_unique<FichierDisque>(std::move(ancien), nom, false);
  if (errno != ENOENT) throw Erreur(kAccesFichier);
  Descripteur nouveau = OuvreRegulier(nom, O_WRONLY | O_CREAT, infos);
  if (!nouveau.Ouvert()) throw Erreur(kAccesFichier);
  return std::make_unique<FichierDisque>(std::move(nouveau), nom, true);
}

bool FichiersDisque::Copie(TexteVue de, TexteVue vers) {
  if (!Nommable(de) || !Nommable(vers)) throw Erreur(kAccesFichier);
  const std::string nom = VersChemin(vers);
  struct stat infos = {};
  const Descripteur source = OuvreRegulier(VersChemin(de), O_RDONLY, infos);
  if (!source.Ouvert()) throw Erreur(kAccesFichier);
  // The copy is no more open to others than the file.
  Descripteur copie(::open(nom.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, infos.st_mode & 0777));
  if (!copie.Ouvert() && errno == EEXIST) return false;
  if (!copie.Ouvert()) throw Erreur(kAccesFichier);
  const bool reussi = CopieTout(source.Fd(), copie.Fd()) && ::fsync(copie.Fd()) == 0 && copie.Ferme() &&
                      DossierSurDisque(nom);
  if (reussi) return true;
  ::unlink(nom.c_str());
  throw Erreur(kAccesFichier);
}

void FichiersDisque::Supprime(TexteVue chemin) {
  if (!Nommable(chemin) || ::unlink(VersChemin(chemin).c_str()) != 0) throw Erreur(kAccesFichier);
}

bool FichiersDisque::EstFichier(TexteVue chemin) {
  struct stat infos = {};
  return Nommable(chemin) && ::stat(VersChemin(chemin).c_str(), &infos) == 0 && !S_ISDIR(infos.st_mode);
}

std::vector<FichierVu> FichiersDisque::Commencant(TexteVue debut) {
  const std::string chemin = VersChemin(debut);
  const std::string dossier = chemin.substr(0, chemin.rfind('/') + 1);
  std::vector<FichierVu> vus;
  std::error_code code;
  const fs::directory_iterator fin;
  for (fs::directory_iterator lieu(dossier.empty() ? "." : dossier, code); !code && lieu != fin;
       lieu.increment(code)) {
    const std::string ici = dossier + lieu->path().filename().string();
    struct stat infos = {};
    if (!ici.starts_with(chemin) || ::stat(ici.c_str(), &infos) != 0 || S_ISDIR(infos.st_mode)) continue;
    constexpr std::int64_t kParSeconde = 1'000'000'000;
    vus.push_back(
        {DepuisChemin(ici), infos.st_size, infos.st_mtim.tv_sec * kParSeconde + infos.st_mtim.tv_nsec});
  }
  return vus;
}

Texte FichiersDisque::DossierCourant() {
  std::error_code code;
  const fs::path dossier = fs::current_path(code);
  return code ? Texte(U".") : DepuisChemin(dossier.string());
}

}  // namespace sudoku
