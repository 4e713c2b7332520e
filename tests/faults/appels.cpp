#include "faults/appels.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <map>
#include <optional>

namespace sudoku::appels {
namespace {

struct Observation {
  std::string dossier;
  Plan plan;
  std::vector<std::string> appels;
  std::map<int, std::string> ouverts;  // file name by descriptor
};
Observation* observation = nullptr;  // null: calls pass as they are

template <class Fonction>
Fonction* Suivante(const char* nom) {
  return reinterpret_cast<Fonction*>(dlsym(RTLD_NEXT, nom));
}

// The name within the watched folder; nothing for a path elsewhere.
std::optional<std::string> Nom(const std::string& chemin) {
  if (observation == nullptr) return std::nullopt;
  if (!chemin.starts_with(observation->dossier + "/")) return std::nullopt;
  const std::string nom = chemin.substr(observation->dossier.size() + 1);
  return nom.empty() ? "." : nom;
}

std::optional<std::string> Nom(int fd) {
  if (observation == nullptr) return std::nullopt;
  const auto place = observation->ouverts.find(fd);
  if (place == observation->ouverts.end()) return std::nullopt;
  return place->second;
}

[[noreturn]] void Meurt() {
  kill(getpid(), SIGKILL);
  for (;;) pause();
}

// Notes a call; gives what the plan has for it.
Panne Note(const char* appel, const std::optional<std::string>& nom) {
  if (!nom) return Panne::kAucune;
  observation->appels.push_back(std::string(appel) + " " + *nom);
  const bool vise = observation->plan.rang == static_cast<int>(observation->appels.size());
  const Panne panne = vise ? observation->plan.panne : Panne::kAucune;
  if (panne == Panne::kMortAvant) Meurt();
  if (panne == Panne::kEchec) errno = observation->plan.code;
  return panne;
}

// A call that carries no bytes.
template <class Reel>
int Simple(Panne panne, Reel reel) {
  if (panne == Panne::kEchec) return -1;
  const int resultat = reel();
  if (panne == Panne::kMortPendant) Meurt();
  return resultat;
}

template <class Reel>
ssize_t Transfere(Panne panne, std::size_t taille, Reel reel) {
  if (panne == Panne::kEchec) return -1;
  const bool partiel = panne != Panne::kAucune && taille > 1;
  const ssize_t resultat = reel(partiel ? taille / 2 : taille);
  if (panne == Panne::kMortPendant) Meurt();
  return resultat;
}

}  // namespace

std::vector<std::string> Observe(const std::string& dossier, Plan plan, const std::function<void()>& corps) {
  Observation ici{.dossier = dossier, .plan = plan, .appels = {}, .ouverts = {}};
  observation = &ici;
  corps();
  observation = nullptr;
  return ici.appels;
}

extern "C" {

int open(const char* chemin, int mode, ...) {
  va_list reste;
  va_start(reste, mode);
  const mode_t droits = (mode & O_CREAT) != 0 ? va_arg(reste, mode_t) : 0;
  va_end(reste);
  const auto nom = Nom(std::string(chemin));
  const int fd = Simple(Note("open", nom),
                        [&] { return Suivante<int(const char*, int, ...)>("open")(chemin, mode, droits); });
  if (nom && fd >= 0) observation->ouverts[fd] = *nom;
  return fd;
}

int close(int fd) {
  const auto nom = Nom(fd);
  const Panne panne = Note("close", nom);
  if (nom) observation->ouverts.erase(fd);
  // The descriptor goes even when closing fails.
  const int resultat = Simple(panne == Panne::kEchec ? Panne::kAucune : panne,
                              [&] { return Suivante<int(int)>("close")(fd); });
  if (panne != Panne::kEchec) return resultat;
  errno = observation->plan.code;
  return -1;
}

int fstat(int fd, struct stat* infos) noexcept {
  return Simple(Note("fstat", Nom(fd)), [&] { return Suivante<int(int, struct stat*)>("fstat")(fd, infos); });
}

int fsync(int fd) {
  return Simple(Note("fsync", Nom(fd)), [&] { return Suivante<int(int)>("fsync")(fd); });
}

int ftruncate(int fd, off_t taille) noexcept {
  return Simple(Note("ftruncate", Nom(fd)),
                [&] { return Suivante<int(int, off_t)>("ftruncate")(fd, taille); });
}

int unlink(const char* chemin) noexcept {
  return Simple(Note("unlink", Nom(std::string(chemin))),
                [&] { return Suivante<int(const char*)>("unlink")(chemin); });
}

ssize_t read(int fd, void* tampon, std::size_t taille) {
  return Transfere(Note("read", Nom(fd)), taille, [&](std::size_t n) {
    return Suivante<ssize_t(int, void*, std::size_t)>("read")(fd, tampon, n);
  });
}

ssize_t write(int fd, const void* tampon, std::size_t taille) {
  return Transfere(Note("write", Nom(fd)), taille, [&](std::size_t n) {
    return Suivante<ssize_t(int, const void*, std::size_t)>("write")(fd, tampon, n);
  });
}

}  // extern "C"

}  // namespace sudoku::appels
