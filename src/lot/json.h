#pragma once

#include <string>
#include <string_view>

namespace sudoku::lot {

// The inside of a JSON string: `"`, `\` and what lies below 0x20 escaped, nothing else.
std::string Json(std::string_view utf8);

}  // namespace sudoku::lot
