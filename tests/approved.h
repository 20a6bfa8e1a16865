// Approved texts. A test tells what it sees; the text must be the same as the one in `approved/`.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

/// Collects what a test tells and compares it when the test ends. The text of this run lies beside
/// the test program; after a look at the difference it may become the approved one.
class Transcript : public std::ostringstream {
 public:
  ~Transcript() override {
    if (str().empty())
      return;
    const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
    std::ofstream(TOLD + name + ".txt") << str();
    std::ifstream approved(APPROVED + name + ".txt");
    std::istringstream lines(str());
    std::string line, wanted;
    while (line == wanted && std::getline(lines, line)) {
      wanted.clear();
      std::getline(approved, wanted);
      EXPECT_EQ(line, wanted) << TOLD << name << ".txt";
    }
    EXPECT_EQ(approved.peek(), EOF) << "fewer lines than " APPROVED << name;
  }
};
