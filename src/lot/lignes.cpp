#include "lot/lignes.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include "platform/fichiers.h"

namespace sudoku::lot {
namespace {

constexpr std::size_t kTampon = std::size_t{1} << 18;
static_assert(kTampon > Lignes::kChampMax, "a full buffer holds more than the longest field");

// Reads what is there, waiting for it if need be. Less than 0 where it fails; errno says why.
ssize_t Lit(int fd, char* tampon, std::size_t taille) {
  for (;;) {
    const ssize_t lus = read(fd, tampon, taille);
    if (lus >= 0 || (errno != EINTR && errno != EAGAIN)) return lus;
    pollfd attente{fd, POLLIN, 0};
    if (errno == EAGAIN) poll(&attente, 1, -1);
  }
}

// Gives a descriptor to read from, or a reason why nothing can be read; it is to be closed where it is above
// 0.
std::optional<std::string> OuvreFichier(const std::string& chemin, int& fd) {
  fd = chemin == "-" ? STDIN_FILENO : open(chemin.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return RaisonSysteme(errno);
  struct stat etat {};
  if (fstat(fd, &etat) != 0) return RaisonSysteme(errno);
  if (S_ISDIR(etat.st_mode)) return RaisonSysteme(EISDIR);
  return std::nullopt;
}

}  // namespace

std::string RaisonSysteme(int erreur) {
  switch (erreur) {
    case ENOENT:
      return "fichier introuvable";
    case EACCES:
    case EPERM:
      return "accès refusé";
    case EISDIR:
      return "c'est un dossier ; il faut un fichier de grilles";
    case ENOTDIR:
      return "un des dossiers du chemin est un fichier";
    case ELOOP:
      return "trop de liens qui mènent l'un à l'autre";
    case ENAMETOOLONG:
      return "chemin trop long";
    case ENOSPC:
    case EDQUOT:
      return "plus de place sur le disque";
    case EFBIG:
      return "fichier plus grand que la limite";
    case EBADF:
      return "flux fermé";
    case EMFILE:
    case ENFILE:
      return "trop de fichiers ouverts";
    case ENOMEM:
      return "mémoire insuffisante";
    case EIO:
      return "erreur du périphérique";
    default:
      return "erreur " + std::to_string(erreur) + " du système";
  }
}

Lignes::Lignes(std::function<void()> avantAttente)
    : avantAttente_(std::move(avantAttente)), tampon_(kTampon) {}

Lignes::~Lignes() {
  if (fd_ > STDIN_FILENO) close(fd_);
}

std::optional<std::string> Lignes::Ouvre(const std::string& chemin) {
  if (fd_ > STDIN_FILENO) close(fd_);
  debut_ = fin_ = 0;
  numero_ = 0;
  epuise_ = false;
  erreur_.reset();
  return OuvreFichier(chemin, fd_);
}

std::optional<Lignes::Ligne> Lignes::Suivante(bool lit) {
  while (const std::optional<std::string_view> brute = LigneBrute(lit)) {
    std::string_view champ = *brute;
    if (champ.ends_with('\r')) champ.remove_suffix(1);
    champ = champ.substr(0, champ.find('\t'));
    if (!champ.empty() && champ.front() != '#') return Ligne{champ, numero_};
  }
  return std::nullopt;
}

// A whole line without its end, or the beginning of one that the buffer can't hold.
std::optional<std::string_view> Lignes::LigneBrute(bool lit) {
  std::size_t cherches = 0;
  for (;;) {
    const char* const debut = tampon_.data() + debut_;
    const std::size_t presents = fin_ - debut_;
    const void* const lf = std::memchr(debut + cherches, '\n', presents - cherches);
    if (lf == nullptr && !lit) return std::nullopt;
    if (lf == nullptr && presents < tampon_.size() && !epuise_) {
      Remplis();  // it moves what is there, whether or not there is more
      cherches = presents;
      continue;
    }
    if (lf == nullptr && presents == 0) return std::nullopt;
    if (erreur_) return std::nullopt;
    ++numero_;
    if (lf != nullptr) {
      const auto longueur = static_cast<std::size_t>(static_cast<const char*>(lf) - debut);
      debut_ += longueur + 1;
      octets_ += static_cast<std::int64_t>(longueur) + 1;
      return std::string_view(debut, longueur);
    }
    octets_ += static_cast<std::int64_t>(presents);
    debut_ = fin_;
    if (presents < tampon_.size()) return std::string_view(debut, presents);  // the last line has no end
    tete_.assign(debut, kChampMax + 1);
    SauteLaFin();
    return tete_;
  }
}

// Reads on behind what isn't handed out yet, which moves to the beginning of the buffer. False at the end of
// the file, or where reading fails.
bool Lignes::Remplis() {
  if (epuise_) return false;
  std::memmove(tampon_.data(), tampon_.data() + debut_, fin_ - debut_);
  fin_ -= debut_;
  debut_ = 0;
  pollfd attente{fd_, POLLIN, 0};
  if (poll(&attente, 1, 0) == 0) avantAttente_();
  const ssize_t lus = Lit(fd_, tampon_.data() + fin_, tampon_.size() - fin_);
  if (lus < 0) erreur_ = RaisonSysteme(errno);
  epuise_ = lus <= 0;
  fin_ += static_cast<std::size_t>(std::max<ssize_t>(lus, 0));
  return lus > 0;
}

void Lignes::SauteLaFin() {
  while (Remplis()) {
    const char* const debut = tampon_.data();
    const auto* const lf = static_cast<const char*>(std::memchr(debut, '\n', fin_));
    debut_ = lf == nullptr ? fin_ : static_cast<std::size_t>(lf - debut) + 1;
    octets_ += static_cast<std::int64_t>(debut_);
    if (lf != nullptr) return;
  }
}

std::optional<std::int64_t> TailleDesFichiers(const std::vector<std::string>& chemins) {
  std::int64_t somme = 0;
  for (const std::string& chemin : chemins) {
    struct stat etat {};
    const bool entree = chemin == "-";
    if ((entree ? fstat(STDIN_FILENO, &etat) : stat(chemin.c_str(), &etat)) != 0) continue;
    if (!S_ISREG(etat.st_mode)) return std::nullopt;
    somme += etat.st_size - (entree ? lseek(STDIN_FILENO, 0, SEEK_CUR) : 0);
  }
  return somme;
}

std::optional<std::string> LitTout(const std::string& chemin, std::string& octets) {
  int fd = -1;
  std::optional<std::string> raison = OuvreFichier(chemin, fd);
  std::vector<char> tampon(kTampon);
  for (ssize_t lus = 1; !raison && lus > 0;) {
    lus = Lit(fd, tampon.data(), tampon.size());
    if (lus < 0) raison = RaisonSysteme(errno);
    octets.append(tampon.data(), static_cast<std::size_t>(std::max<ssize_t>(lus, 0)));
    if (octets.size() > static_cast<std::size_t>(kOctetsMax)) raison = "trop grand pour une partie";
  }
  if (fd > STDIN_FILENO) close(fd);
  return raison;
}

}  // namespace sudoku::lot
