# Flags of our own code; a target takes them by linking sudoku_warnings.
add_library(sudoku_warnings INTERFACE)
target_compile_options(sudoku_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-align -Wnull-dereference -Wimplicit-fallthrough)
# g++ 12 takes the concatenation of short strings for overlapping copies in optimised builds (GCC bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  target_compile_options(sudoku_warnings INTERFACE -Wno-restrict)
  # With the sanitizers' checks in between it takes parts of std::regex for uninitialised.
  if(CMAKE_CXX_FLAGS MATCHES "-fsanitize")
    target_compile_options(sudoku_warnings INTERFACE -Wno-maybe-uninitialized)
  endif()
endif()
