// Runs the tests of the program's shell under its own application object.
#include <gtest/gtest.h>

#include "tests/screens/app/Shell.h"

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  // A death test starts this program anew, so that the child has an application of its own.
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const lensbench::Shell shell(argc, argv);
  return RUN_ALL_TESTS();
}
