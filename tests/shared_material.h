#pragma once
// Tests that read the shared test material (real documents, schemas and
// photographs in ../shared beside the checkout, see README) skip with a
// message where it is missing instead of failing on a missing file.

#include <gtest/gtest.h>

#include <filesystem>

#define LP_SKIP_WITHOUT_SHARED(where)                                                       \
  if (!std::filesystem::exists(where))                                                      \
  GTEST_SKIP() << "shared test material missing: " << std::filesystem::path(where).string() \
               << " (see README)"
