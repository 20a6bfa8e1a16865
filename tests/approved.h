// Approved texts. A test tells what it sees; the text must be the same as the one in `approved/`.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

/// Collects what a test tells, and compares it when the test ends, in lines that a person can read.
/// A text that differs stays beside the test program until it no longer does.
class Transcript : public std::ostringstream {
 public:
  ~Transcript() override {
    const auto *test = testing::UnitTest::GetInstance()->current_test_info();
    const auto name = std::string(test->test_suite_name()) + "." + test->name() + ".txt";
    const std::string told = TOLD + name, approved = APPROVED + name;
    std::string text = str();
    for (std::size_t first = 0, last = 0; first < text.size(); first = last + 1) {
      last = std::min(text.find('\n', first), text.size());
      const std::size_t blank = text.rfind(' ', first + 116);
      if (last - first > 120 && blank + 1 > first + 5)
        text.replace(last = blank, 1, "\n    ");
    }
    std::ostringstream wanted;
    wanted << std::ifstream(approved).rdbuf();  // Empty for a test that tells nothing.
    std::remove(told.c_str());
    if (text == wanted.str())
      return;
    std::ofstream(told) << text;
    EXPECT_EQ(std::system(("diff -u " + approved + " " + told).c_str()), 0)
        << "to approve what is told now: cp " << told << " " << APPROVED;
  }
};
