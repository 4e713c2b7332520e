#pragma once

#include <functional>

namespace sudoku {

// What carries an event of the toolkit to the game. Whatever may run a handler goes through here: the windows
// show what the records hold when it returns, and the ticks of timers wait meanwhile.
class Pilote {
 public:
  virtual ~Pilote() = default;
  virtual void Execute(const std::function<void()>& acte) = 0;
  // … and another follows at once: what this one wrote is shown after that, or when none comes.
  virtual void Precede(const std::function<void()>& acte) = 0;
  // … and the pointer says that it may take a while.
  virtual void ExecuteCommande(const std::function<void()>& acte) = 0;
  // A handler is on the stack.
  virtual bool Occupe() const = 0;
};

}  // namespace sudoku
