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

// The name within the watched folder; nothing for a path elsewhere.
std::optional<std::string> Nom(const std::string& chemin) {
  if (observation == nullptr || !chemin.starts_with(observation->dossier + "/")) return std::nullopt;
  const std::string nom = chemin.substr(observation->dossier.size() + 1);
  return nom.empty() ? "." : nom;
}

std::optional<std::string> Nom(int fd) {
  if (observation == nullptr || !observation->ouverts.contains(fd)) return std::nullopt;
  return observation->ouverts.at(fd);
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

template <class Fonction>
Fonction* Suivante(const char* nom) {
  return reinterpret_cast<Fonction*>(dlsym(RTLD_NEXT, nom));
}

// The call itself, unless the plan has something else for it.
template <class Fonction, class... Arguments>
auto Fait(Panne panne, Fonction* reel, Arguments... arguments) {
  if (panne == Panne::kEchec) return decltype(reel(arguments...)){-1};
  const auto resultat = reel(arguments...);
  if (panne == Panne::kMortPendant) Meurt();
  return resultat;
}

std::size_t Taille(Panne panne, std::size_t taille) {
  return panne == Panne::kAucune ? taille : (taille + 1) / 2;
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
  // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): the line above has begun it
  const mode_t droits = (mode & O_CREAT) != 0 ? va_arg(reste, mode_t) : 0;
  va_end(reste);
  const auto nom = Nom(std::string(chemin));
  const int fd = Fait(Note("open", nom), Suivante<int(const char*, int, ...)>("open"), chemin, mode, droits);
  if (nom && fd >= 0) observation->ouverts[fd] = *nom;
  return fd;
}

int close(int fd) {
  const auto nom = Nom(fd);
  const Panne panne = Note("close", nom);
  if (nom) observation->ouverts.erase(fd);
  // The descriptor goes even when closing fails.
  const int resultat =
      Fait(panne == Panne::kEchec ? Panne::kAucune : panne, Suivante<decltype(close)>("close"), fd);
  if (panne != Panne::kEchec) return resultat;
  errno = observation->plan.code;
  return -1;
}

int fstat(int fd, struct stat* infos) noexcept {
  return Fait(Note("fstat", Nom(fd)), Suivante<decltype(fstat)>("fstat"), fd, infos);
}

int fsync(int fd) {
  return Fait(Note("fsync", Nom(fd)), Suivante<decltype(fsync)>("fsync"), fd);
}

int ftruncate(int fd, off_t taille) noexcept {
  return Fait(Note("ftruncate", Nom(fd)), Suivante<decltype(ftruncate)>("ftruncate"), fd, taille);
}

int unlink(const char* chemin) noexcept {
  return Fait(Note("unlink", Nom(std::string(chemin))), Suivante<decltype(unlink)>("unlink"), chemin);
}

ssize_t read(int fd, void* tampon, std::size_t taille) {
  const Panne panne = Note("read", Nom(fd));
  return Fait(panne, Suivante<decltype(read)>("read"), fd, tampon, Taille(panne, taille));
}

ssize_t write(int fd, const void* tampon, std::size_t taille) {
  const Panne panne = Note("write", Nom(fd));
  return Fait(panne, Suivante<decltype(write)>("write"), fd, tampon, Taille(panne, taille));
}

}  // extern "C"

}  // namespace sudoku::appels
