#include "console/ConsoleLooks.h"

#include <gtest/gtest.h>
#include <vector>

namespace tarnwick {
namespace {

TEST(ConsoleLooksTest, TheLettersHaveSizesFromSixToThirtySixPoints) {
  std::vector<int> up{smallestLetters};
  while (steppedLetters(up.back(), 1) != up.back()) up.push_back(steppedLetters(up.back(), 1));
  EXPECT_EQ(up, (std::vector<int>{6, 7, 8, 9, 10, 11, 12, 13, 14, 16, 18, 20, 22, 24, 28, 32, 36}));
  std::vector<int> down{largestLetters};
  while (steppedLetters(down.back(), -1) != down.back()) down.push_back(steppedLetters(down.back(), -1));
  EXPECT_EQ(down, std::vector<int>(up.rbegin(), up.rend()));
}

TEST(ConsoleLooksTest, ManyStepsAtOnceEndAtTheLastSize) {
  EXPECT_EQ(steppedLetters(10, 3), 13);
  EXPECT_EQ(steppedLetters(10, -3), 7);
  EXPECT_EQ(steppedLetters(10, 0), 10);
  EXPECT_EQ(steppedLetters(32, 100), 36);
  EXPECT_EQ(steppedLetters(7, -100), 6);
}

TEST(ConsoleLooksTest, AUsualSizeOfTheDesktopsOwnIsLeftForTheNextOne) {
  EXPECT_EQ(steppedLetters(0, 1, 15), 16);
  EXPECT_EQ(steppedLetters(0, -1, 15), 14);
  EXPECT_EQ(steppedLetters(0, 1, 48), 0) << "there is none that is larger";
  EXPECT_EQ(steppedLetters(0, -1, 48), 36);
}

TEST(ConsoleLooksTest, WhereAStepLeadsToTheUsualSizeThatIsWhatIsMeant) {
  EXPECT_EQ(steppedLetters(11, -1, 10), 0);
  EXPECT_EQ(steppedLetters(9, 1, 10), 0);
  EXPECT_EQ(steppedLetters(11, -2, 10), 9);
}

}  // namespace
}  // namespace tarnwick
