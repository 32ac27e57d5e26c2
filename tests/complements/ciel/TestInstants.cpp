#include "complements/ciel/Instants.hpp"

#include <gtest/gtest.h>
TEST(A, B) { EXPECT_TRUE(true); }
