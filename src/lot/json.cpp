#include "lot/json.h"

#include <cstdio>

namespace sudoku::lot {

std::string Json(std::string_view utf8) {
  constexpr std::string_view kCourts = "\"\\\b\f\n\r\t";
  constexpr std::string_view kLettres = "\"\\bfnrt";
  std::string json;
  for (const char c : utf8) {
    if (const std::size_t court = kCourts.find(c); court != std::string_view::npos) {
      (json += '\\') += kLettres[court];
    } else if (static_cast<unsigned char>(c) < 0x20) {
      char code[8];
      std::snprintf(code, sizeof code, "\\u%04x", static_cast<unsigned>(c));
      json += code;
    } else {
      json += c;
    }
  }
  return json;
}

}  // namespace sudoku::lot
