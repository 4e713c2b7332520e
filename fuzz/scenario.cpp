// A session whose commands the bytes choose. The first chooses what is on the disk.
#include "cible.h"
#include "partie.h"

namespace sudoku::fuzz {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view kPartie =
    "1234\r\n10 0 0 0 0 040 0 010 0 040 0 0 0\r\n"
    "Essai-1021 0 0 0 0403222010 0 040 0 0 0\r\n"
    "deux\x1Fmots-10 0 0 0 0 040 0 010 0 040 0 0 0\r\n"
    "\0Marie-00:03:17\0"sv;

constexpr std::string_view kFacile =
    "123456789\r\n"
    "20 0 0506080 010 0 0 050 0 0 030 09010 0 0 030 0 0 0 0 0 0306010 0 0 07040 0 070 0 08050 090 0 0 080 0 "
    "0 06030 "
    "02080 060 070 0 090 020 030 0 080 040 010 07050 0 0\r\n"
    "\0"sv;

}  // namespace

void Joue(std::string_view octets) {
  Octets choix(octets);
  FichiersMemoire fichiers;
  fichiers[U"/partie.sud"] = kPartie;
  if (choix.Tire(2) == 1) fichiers[U"/a.sud"] = kFacile;
  Partie(choix, fichiers, "start", true).Joue();
}

}  // namespace sudoku::fuzz
