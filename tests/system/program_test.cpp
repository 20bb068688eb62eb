#include <gtest/gtest.h>

TEST(Program, Placeholder) {}
