#pragma once

#include <string>
#include <string_view>

namespace sudoku::lot {

// Text as it may stand in a page, between tags and in attributes: `&<>"'` as entities, and what no page may
// hold (control characters above all) as a sign that stands for it.
std::string Html(std::string_view utf8);

// What stands before and behind the grids of a page.
std::string_view PageAvant();
std::string_view PageApres();

}  // namespace sudoku::lot
