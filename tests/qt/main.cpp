#include "shell/qt/peinture/Apparence.hpp"
#include "shell/qt/widgets/Accessible.hpp"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char **argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // needs no screen, also when the tests are only listed
  }
  const QApplication application(argc, argv);
  velmaris::qt::PoseApparence();
  velmaris::qt::PoseRolesAccessibles();
  return RUN_ALL_TESTS();
}
