# Flags of our own code; a target takes them by linking sudoku_warnings.
add_library(sudoku_warnings INTERFACE)
target_compile_options(sudoku_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-align -Wnull-dereference -Wimplicit-fallthrough)
