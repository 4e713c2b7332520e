#pragma once

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace sudoku::lot {

// What a worker makes of one line: text for standard output, or what is wrong with the line. An alert is
// something that a check of the line found, said beside its output.
struct Reponse {
  std::string sortie;
  std::string erreur;
  std::string alerte;
  std::int64_t rang = 0;  // comes in: the line's number among the good ones, where the run counts them
  // Comes in: gives out what `sortie` holds and empties it, once all lines before this one are out.
  std::function<void(Reponse&)> coule;

  void Efface() {
    sortie.clear();
    erreur.clear();
    alerte.clear();
  }
};

// Works on one line at a time. It owns its game, so that any number of them work side by side.
class Ouvrier {
 public:
  virtual ~Ouvrier() = default;
  // `reponse` comes in empty.
  virtual void Traite(std::string_view champ, Reponse& reponse) = 0;
};

using Atelier = std::function<std::unique_ptr<Ouvrier>()>;

// One line on its way to its answer; or, with `faute`, what is wrong with a file as a whole, to be said in
// its turn.
struct Poste {
  std::string champ;
  std::string faute;
  const std::string* fichier = nullptr;
  std::int64_t numero = 0;  // of the line in the file
  std::int64_t lus = 0;     // bytes read up to its end, of all files
  Reponse reponse;
  std::atomic<bool> fini{false};

  void Occupe(Ouvrier& ouvrier) {
    reponse.Efface();
    if (faute.empty()) ouvrier.Traite(champ, reponse);
  }
};

// Fills the place with the next line; false: there is none. With `suite` it is one to be taken together with
// the line before it: false where none is at hand, or enough have been taken.
using Alimentation = std::function<bool(Poste&, bool suite)>;

// Workers with a thread each. Each reads some lines when it is free, works on them, and delivers each if it
// is the oldest one, with all finished ones behind it: no thread only reads, and none is woken for a line.
// What is read and not delivered lies in a ring of fixed size.
class Equipe {
 public:
  // `lit` and `livre` are called by one thread at a time, in the order of the lines; `coule` is given the
  // pieces of answers that come in pieces. A system that gives fewer threads makes the team smaller.
  Equipe(int ouvriers, const Atelier& atelier, Alimentation lit, std::function<void(const Poste&)> livre,
         std::function<void(std::string_view)> coule);
  ~Equipe();  // all has been read, and has come out
  Equipe(const Equipe&) = delete;
  Equipe& operator=(const Equipe&) = delete;

 private:
  struct Prise {
    std::size_t debut;
    std::size_t fin;
  };
  void Travaille(Ouvrier& ouvrier);
  Prise Prend();
  void Livre();
  void Coule(std::size_t numero, Reponse& reponse);
  Poste& Place(std::size_t numero) { return postes_[numero % postes_.size()]; }

  Alimentation lit_;
  std::function<void(const Poste&)> livre_;
  std::function<void(std::string_view)> coule_;
  std::vector<Poste> postes_;
  std::mutex lecture_;
  std::size_t lus_ = 0;  // lines read, by who holds `lecture_`
  bool fin_ = false;     // there are no more
  std::mutex livraison_;
  std::atomic<std::size_t> livres_{0};  // lines delivered
  std::vector<std::unique_ptr<Ouvrier>> ouvriers_;
  std::vector<std::thread> fils_;
};

}  // namespace sudoku::lot
