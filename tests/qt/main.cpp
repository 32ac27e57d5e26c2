#include "shell/qt/Apparence.hpp"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  velmaris::qt::PoseApparence(application);
  return RUN_ALL_TESTS();
}
