#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sudoku::lot {

// Reads files line by line, one after the other, within a buffer of fixed size whatever the files hold.
class Lignes {
 public:
  struct Ligne {
    std::string_view champ;   // the first field; good until the next call
    std::int64_t numero = 0;  // in its file, from 1, every line counted
  };

  // `avantAttente` is called before a read that may have to wait for what it reads.
  explicit Lignes(std::function<void()> avantAttente);
  ~Lignes();
  Lignes(const Lignes&) = delete;
  Lignes& operator=(const Lignes&) = delete;

  // Begins a file; "-" is standard input. Otherwise a French reason why it can't be read.
  std::optional<std::string> Ouvre(const std::string& chemin);
  // The next line with something in its first field that isn't a comment. Nothing at the end of the file, or
  // where reading fails: then Erreur() says why. Of a field longer than kChampMax bytes only its beginning,
  // of more than that many bytes, is given. Without `lit` only what has been read is looked at, as far as
  // there are ends of lines.
  std::optional<Ligne> Suivante(bool lit = true);
  const std::optional<std::string>& Erreur() const { return erreur_; }

  // Bytes handed out so far, of all files.
  std::int64_t Octets() const { return octets_; }
  // Bytes read and not handed out.
  std::int64_t Presents() const { return static_cast<std::int64_t>(fin_ - debut_); }

  // As many bytes as the characters of the longest grid, 169 by 169 cells of two, can have: a longer field
  // has too many characters, whatever they are.
  static constexpr std::size_t kChampMax = 169UL * 169 * 2 * 4;

 private:
  std::optional<std::string_view> LigneBrute(bool lit);
  bool Remplis();
  void SauteLaFin();

  std::function<void()> avantAttente_;
  std::vector<char> tampon_;
  std::string tete_;       // of a line longer than the buffer
  std::size_t debut_ = 0;  // what isn't handed out yet
  std::size_t fin_ = 0;
  int fd_ = -1;
  bool epuise_ = false;
  std::int64_t numero_ = 0;
  std::int64_t octets_ = 0;
  std::optional<std::string> erreur_;
};

// Reads a whole file, "-" for standard input. Otherwise a French reason why it can't be: more than kOctetsMax
// is one.
std::optional<std::string> LitTout(const std::string& chemin, std::string& octets);

// What the system says of a failed call, in French.
std::string RaisonSysteme(int erreur);

// Bytes that these files hold from where reading begins; nothing if one of them is no regular file.
std::optional<std::int64_t> TailleDesFichiers(const std::vector<std::string>& chemins);

}  // namespace sudoku::lot
