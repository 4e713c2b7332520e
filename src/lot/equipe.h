#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
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

// Workers with a thread each. Lines go in and come out in one order, through a ring of fixed size: whoever
// finishes the oldest one delivers it and all finished ones behind it.
class Equipe {
 public:
  // A system that gives fewer threads makes it smaller. `coule` is given the pieces of answers that come in
  // pieces.
  Equipe(int ouvriers, const Atelier& atelier, std::function<void(const Poste&)> livre,
         std::function<void(std::string_view)> coule);
  ~Equipe();  // all that went in has come out
  Equipe(const Equipe&) = delete;
  Equipe& operator=(const Equipe&) = delete;

  // The place for the next line, which the caller fills in and then hands over with Confie. Waits for one to
  // get free.
  Poste& Prochain();
  void Confie();

 private:
  void Travaille(Ouvrier& ouvrier);
  void Livre();
  void Coule(std::size_t numero, Reponse& reponse);
  static constexpr std::size_t kJamais = static_cast<std::size_t>(-1);
  Poste& Place(std::size_t numero) { return postes_[numero % postes_.size()]; }

  std::function<void(const Poste&)> livre_;
  std::function<void(std::string_view)> coule_;
  std::vector<Poste> postes_;
  std::mutex mutex_;
  std::condition_variable aFaire_;
  std::condition_variable place_;
  std::size_t confies_ = 0;  // numbers of lines: handed over, taken by a worker, delivered
  std::size_t pris_ = 0;
  std::atomic<std::size_t> livres_{0};
  std::atomic<std::size_t> reveil_{kJamais};  // the reader sleeps until so many are delivered
  bool fin_ = false;
  std::mutex livraison_;
  std::vector<std::unique_ptr<Ouvrier>> ouvriers_;
  std::vector<std::thread> fils_;
};

}  // namespace sudoku::lot
