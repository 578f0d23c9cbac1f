#include "base/Tarnwickexception.h"
#include "base/Tarnwickfile.h"
#include "base/TokenString.h"

#include <gtest/gtest.h>
#include <string>
#include <type_traits>

namespace tarnwick {
namespace {

TEST(Tarnwickexception, WhereIsAlwaysUnknown) {
  const Tarnwickexception plain("text");
  EXPECT_EQ(plain.message, "text");
  EXPECT_EQ(plain.where, "unknown");
  const Tarnwickfile::FileNotOpenE named("text", "name");
  EXPECT_EQ(named.message, "text");
  EXPECT_EQ(named.where, "unknown");
  EXPECT_EQ(named.file, "name");
}

TEST(Tarnwickexception, AHandlerForTheBaseCatchesWhatCarriesText) {
  try {
    throw Tarnwickfile::FileNotOpenE("text", "name");
  } catch (const Tarnwickexception& failure) {
    EXPECT_EQ(failure.message, "text");
  }
}

TEST(Tarnwickexception, ItIsAPlainRecordThatIsThrownByValue) {
  EXPECT_FALSE(std::is_polymorphic_v<Tarnwickexception>);
  EXPECT_TRUE(std::is_copy_constructible_v<Tarnwickexception>);
  EXPECT_TRUE((std::is_base_of_v<Tarnwickexception, Tarnwickfile::FileNotOpenE>));
}

TEST(Tarnwickexception, AMessageGrowsOnItsWayUp) {
  const auto read = [] {
    try {
      const Tarnwickfile file("no where/no thing", FileMode::Read);
    } catch (Tarnwickfile::FileNotOpenE& failure) {
      failure.message += "\nCan't process file " + failure.file;
      throw;
    }
  };
  try {
    read();
    ADD_FAILURE() << "nothing was thrown";
  } catch (const Tarnwickexception& failure) {
    EXPECT_EQ(failure.message, "No such file or directory\nCan't process file no where/no thing");
    EXPECT_EQ(failure.where, "unknown");
  }
}

TEST(Marker, IsEmptyAndNoneOfThoseThatCarryText) {
  EXPECT_TRUE(std::is_empty_v<TokenString::OutOfBoundsE>);
  EXPECT_FALSE((std::is_base_of_v<Tarnwickexception, TokenString::OutOfBoundsE>));
  EXPECT_TRUE(std::is_empty_v<StringableM::InvalidDataE>);
  EXPECT_FALSE((std::is_base_of_v<Tarnwickexception, StringableM::InvalidDataE>));
}

}  // namespace
}  // namespace tarnwick
