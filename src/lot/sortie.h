#pragma once

#include <condition_variable>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>

namespace sudoku::lot {

// What goes to standard output: gathered into large writes, and yet never held back for long, by a thread of
// its own. Usable from any thread. Where nobody reads any more the program ends without a word, and with a
// message where writing fails for another reason; both with status 1.
class Sortie {
 public:
  Sortie();
  ~Sortie();  // what is left is written
  Sortie(const Sortie&) = delete;
  Sortie& operator=(const Sortie&) = delete;

  void Ecrit(std::string_view texte);
  // Writes at once what has been gathered.
  void Pousse();

 private:
  void PousseTampon();
  void Veille();

  std::mutex mutex_;
  std::condition_variable reveil_;
  std::string tampon_;
  bool fin_ = false;
  std::thread veilleur_;  // last: it uses the others
};

// Writes to standard output: everything as it is, but on a terminal control characters are shown, for nobody
// knows who chose the names and symbols. The number of the error, 0 for none.
int EcritSortie(std::string_view texte);

// Writes all of it to a file descriptor; the number of the error, 0 for none.
int EcritTout(int fd, std::string_view texte);

}  // namespace sudoku::lot
