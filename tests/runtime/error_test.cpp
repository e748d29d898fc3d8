#include <gtest/gtest.h>

#include "runtime/error.h"

TEST(RuntimeError, CarriesTheOriginalNumbers) {
  try {
    lp::RaiseOverflow();
  } catch (const lp::RuntimeError& e) {
    EXPECT_EQ(e.Number(), 6);
    EXPECT_STREQ(e.what(), "Overflow");
  }
}
