#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

namespace sudoku::lot {

// Standard error: messages, and while somebody watches it on a terminal and the results go elsewhere, a line
// that says how far the run is. It is wiped for each message and at the end. Usable from any thread.
class Progres {
 public:
  // `octets`: the size of all that will be read, where it is known.
  explicit Progres(std::optional<std::int64_t> octets);
  ~Progres();
  Progres(const Progres&) = delete;
  Progres& operator=(const Progres&) = delete;

  // A grid more is done; so many bytes have been read.
  void Avance(std::int64_t lus) {
    grilles_.fetch_add(1, std::memory_order_relaxed);
    lus_.store(lus, std::memory_order_relaxed);
  }
  // A line of its own on standard error; control characters are shown.
  void Message(std::string_view texte);

 private:
  using Horloge = std::chrono::steady_clock;
  void Veille();
  std::string Etat() const;

  const std::optional<std::int64_t> octets_;
  const Horloge::time_point debut_ = Horloge::now();
  std::atomic<std::int64_t> grilles_{0};
  std::atomic<std::int64_t> lus_{0};
  std::mutex mutex_;
  std::condition_variable reveil_;
  bool montre_ = false;  // the line stands on the terminal
  bool fin_ = false;
  std::thread veilleur_;  // only where there is a line to show
};

}  // namespace sudoku::lot
