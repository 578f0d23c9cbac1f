// Lists of the files that were used last.
#include "base/TokenString.h"
#include "platform/Path.h"
#include "settings/LastNames.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Names = std::vector<std::string>;

TokenString listOf(const Names& names) {
  TokenString list;
  for (const auto& name : names) list.add(name);
  return list;
}

TEST(LastNamesTest, TheLastOneComesFirstAndTheOldestGo) {
  TokenString names;
  for (const auto* name : {"a", "b", "c", "d"}) putNameFirst(names, name, 3);
  EXPECT_EQ(names.elements(), (Names{"d", "c", "b"}));
  putNameFirst(names, "e", 2);
  EXPECT_EQ(names.elements(), (Names{"e", "d"}));
}

TEST(LastNamesTest, OneThatIsKnownMovesToTheFront) {
  TokenString names = listOf({"a", "b", "c"});
  putNameFirst(names, "c", 3);
  EXPECT_EQ(names.elements(), (Names{"c", "a", "b"}));
  putNameFirst(names, "c", 3);
  EXPECT_EQ(names.elements(), (Names{"c", "a", "b"}));
}

TEST(LastNamesTest, NamesAreComparedAsTheSystemComparesFiles) {
  const bool same = platform::sameFileName("Main.java", "MAIN.java");
  TokenString names = listOf({"other", "Main.java"});
  putNameFirst(names, "MAIN.java", 5);
  EXPECT_EQ(names.elements(), same ? (Names{"MAIN.java", "other"}) : (Names{"MAIN.java", "other", "Main.java"}));
}

TEST(LastNamesTest, WhatIsNoNameIsNotKept) {
  TokenString names = listOf({"a", "", "b", ""});
  putNameFirst(names, "", 5);
  EXPECT_EQ(names.elements(), (Names{"a", "", "b", ""})) << "nothing was used";
  EXPECT_EQ(firstNames(names, 5), (Names{"a", "b"}));
  EXPECT_EQ(firstNames(names, 1), Names{"a"});
  putNameFirst(names, "c", 3);
  EXPECT_EQ(names.elements(), (Names{"c", "a", "b"}));
  EXPECT_EQ(firstNames(TokenString(), 5), Names{});
}

TEST(LastNamesTest, EveryLetterOfANameSurvives) {
  const Names odd = {"/a b/Übung 日本.java", "C:\\x;y]z.java", "\"q\".java", "]", ";"};
  TokenString names;
  for (auto name = odd.rbegin(); name != odd.rend(); ++name) putNameFirst(names, *name, 10);
  TokenString read;
  read.fromString(names.toString());
  EXPECT_EQ(firstNames(read, 10), odd);
}

}  // namespace
}  // namespace tarnwick
