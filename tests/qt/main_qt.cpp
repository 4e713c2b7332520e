// The tests of the real windows, on whatever platform QT_QPA_PLATFORM names.

#include <gtest/gtest.h>

#include "qt/application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // A test of the program's end runs it in a process of its own.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  QApplication application(argc, argv);
  sudoku::PrepareApplication(application);
  return RUN_ALL_TESTS();
}
