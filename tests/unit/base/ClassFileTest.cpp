#include "base/ClassFile.h"
#include "support/ClassBytes.h"
#include "support/TestProgram.h"

#include <gtest/gtest.h>

namespace tarnwick::test {
namespace {

class ClassFileTest : public testing::Test {
 protected:
  std::optional<ClassFile> read(const std::string& bytes) {
    writeFile(path_, bytes);
    return readClassFile(path_);
  }
  /// "none" if it is no class file.
  std::string nameIn(const std::string& bytes) {
    const auto file = read(bytes);
    return file ? file->fullName() : "none";
  }

  ScratchFolder scratch_;
  std::string path_ = scratch_.file("X.class");
};

TEST_F(ClassFileTest, TheFullNameAndTheVersionAreRead) {
  const auto file = read(ClassBytes::of("shop/till/Main$Part", 17));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->name, (std::vector<std::string>{"shop", "till", "Main$Part"}));
  EXPECT_EQ(file->fullName(), "shop.till.Main$Part");
  EXPECT_EQ(file->javaVersion, 17);
  EXPECT_EQ(nameIn(ClassBytes::of("Main", 25)), "Main");
}

TEST_F(ClassFileTest, TheVersionStandsInTheSixthAndSeventhByte) {
  const struct {
    unsigned inFile;
    int java;
  } table[] = {{45, 1}, {48, 4}, {52, 8}, {61, 17}, {69, 25}, {300, 256}};
  for (const auto& row : table) {
    writeFile(path_, ClassBytes::number(0xCAFEBABE, 4) + ClassBytes::number(3, 2) + ClassBytes::number(row.inFile, 2));
    EXPECT_EQ(classFileVersion(path_), row.java);
  }
  EXPECT_EQ(classFileVersion(scratch_.file("none.class")), std::nullopt);
  for (const unsigned version : {0U, 44U}) {
    writeFile(path_, ClassBytes::of("Main", version - 44));
    EXPECT_EQ(classFileVersion(path_), std::nullopt) << version;
  }
}

TEST_F(ClassFileTest, EveryKindOfConstantIsPassedOver) {
  const struct {
    unsigned kind;
    int bytes;
    unsigned places;
  } kinds[] = {{3, 4, 1},  {4, 4, 1},  {5, 8, 2},  {6, 8, 2},  {8, 2, 1},  {9, 4, 1},  {10, 4, 1}, {11, 4, 1},
               {12, 4, 1}, {15, 3, 1}, {16, 2, 1}, {17, 4, 1}, {18, 4, 1}, {19, 2, 1}, {20, 2, 1}};
  std::string all = ClassBytes::text("other") + ClassBytes::named(7, 1);
  unsigned places = 2;
  for (const auto& kind : kinds) {
    all += ClassBytes::number(kind.kind, 1) + std::string(static_cast<std::size_t>(kind.bytes), '\7');
    places += kind.places;
  }
  all += ClassBytes::named(7, places + 2) + ClassBytes::text("a/B");
  EXPECT_EQ(nameIn(ClassBytes::file(61, places + 3, all, places + 1)), "a.B");
  for (const unsigned kind : {0U, 2U, 13U, 14U, 21U, 255U})
    EXPECT_EQ(
        nameIn(ClassBytes::file(
            61, 4, ClassBytes::text("B") + ClassBytes::named(7, 1) + ClassBytes::number(kind, 1) + std::string(2, '\0'),
            2)),
        "none")
        << kind;
}

TEST_F(ClassFileTest, AnUnknownKindOfConstantHasNoLength) {
  const std::string known = ClassBytes::text("B") + ClassBytes::named(7, 1);
  EXPECT_EQ(nameIn(ClassBytes::file(61, 3, known, 2)), "B");
  EXPECT_EQ(nameIn(ClassBytes::file(61, 4, known + ClassBytes::number(2, 1), 2)), "none");
}

TEST_F(ClassFileTest, ReferencesThatLeadNowhereGiveNothing) {
  const std::string constants = ClassBytes::text("B") + ClassBytes::named(7, 1) + ClassBytes::named(7, 0) +
                                ClassBytes::named(7, 2) + ClassBytes::named(7, 9) + ClassBytes::named(7, 65535);
  EXPECT_EQ(nameIn(ClassBytes::file(61, 7, constants, 2)), "B");
  for (const unsigned thisClass : {0U, 1U, 3U, 4U, 5U, 6U, 7U, 8U, 65535U})
    EXPECT_EQ(nameIn(ClassBytes::file(61, 7, constants, thisClass)), "none") << thisClass;
}

TEST_F(ClassFileTest, NoCutOfAFileIsTakenForAWholeOne) {
  const std::string whole = ClassBytes::of("a/B", 17);
  const std::size_t needed = whole.size() - 8;
  for (std::size_t size = 0; size < needed; ++size) EXPECT_EQ(nameIn(whole.substr(0, size)), "none") << size;
  EXPECT_EQ(nameIn(whole.substr(0, needed)), "a.B") << "what follows is nobody's matter";
}

TEST_F(ClassFileTest, HalfANumberIsNone) {
  std::string constants = ClassBytes::text("B") + ClassBytes::text("Other");
  for (int i = 3; i < 258; ++i) constants += ClassBytes::named(7, i == 256 ? 2 : 1);
  const std::string whole = ClassBytes::file(61, 258, constants, 257);
  EXPECT_EQ(nameIn(whole), "B");
  EXPECT_EQ(nameIn(whole.substr(0, whole.size() - 1)), "none") << "neither the class of its first byte alone";
}

TEST_F(ClassFileTest, AnyByteAnywhereIsSurvived) {
  const std::string whole = ClassBytes::file(
      61, 5, ClassBytes::text("a/B") + ClassBytes::named(7, 1) + ClassBytes::number(5, 1) + std::string(8, '\1'), 2);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (const int byte : {0, 1, 2, 5, 7, 18, 47, 127, 128, 255}) {
      std::string bytes = whole;
      bytes[at] = static_cast<char>(byte);
      const auto file = read(bytes);
      if (!file) continue;
      EXPECT_FALSE(file->name.empty());
      EXPECT_FALSE(file->name.back().empty());
    }
  }
}

TEST_F(ClassFileTest, NamesThatNoClassCanHaveGiveNothing) {
  for (const std::string name : {"", "/", "a/", "/B", "a//B", "a.B", "a;B", "[I", "a\nB", "a\rB", "a\x7F"})
    EXPECT_EQ(nameIn(ClassBytes::of(name, 17)), "none") << name;
  EXPECT_EQ(nameIn(ClassBytes::of(std::string("a\0B", 3), 17)), "none");
  EXPECT_EQ(nameIn(ClassBytes::of("gr\xC3\xBC\xC3\x9F\x65/B", 17)), "gr\xC3\xBC\xC3\x9F\x65.B");
}

TEST_F(ClassFileTest, WhatIsNoClassFileGivesNothing) {
  EXPECT_EQ(nameIn(""), "none");
  EXPECT_EQ(nameIn("public class B {}"), "none");
  EXPECT_EQ(nameIn(std::string(100, '\xCA')), "none");
  std::string other = ClassBytes::of("B", 17);
  other[3] = '\xBF';
  EXPECT_EQ(nameIn(other), "none") << "another mark";
  EXPECT_FALSE(readClassFile(scratch_.path()));
  EXPECT_FALSE(readClassFile(scratch_.file("none.class")));
  EXPECT_FALSE(readClassFile(""));
}

}  // namespace
}  // namespace tarnwick::test
