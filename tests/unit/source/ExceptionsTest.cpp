#include "source/Compiler.h"
#include "source/SourceReader.h"

#include <gtest/gtest.h>
#include <type_traits>

namespace tarnwick {
namespace {

TEST(SourceExceptions, WhatTheCompilerThrowsCarriesItsTextAlone) {
  const Compiler::CannotCompileE failure("text");
  EXPECT_EQ(failure.message, "text");
  EXPECT_EQ(failure.where, "unknown");
  EXPECT_TRUE((std::is_base_of_v<Tarnwickexception, Compiler::CannotCompileE>));
  EXPECT_EQ(sizeof(Compiler::CannotCompileE), sizeof(Tarnwickexception));
}

TEST(SourceExceptions, BadDataNamesItsFile) {
  const SourceReader::BadDataE failure("text", "\"a b.java\"");
  EXPECT_EQ(failure.message, "text");
  EXPECT_EQ(failure.where, "unknown");
  EXPECT_EQ(failure.file, "\"a b.java\"");
  EXPECT_TRUE((std::is_base_of_v<Tarnwickexception, SourceReader::BadDataE>));
}

TEST(SourceExceptions, TheEndOfALevelIsAnEmptyMarker) {
  EXPECT_TRUE(std::is_empty_v<SourceReader::EndBraceE>);
  EXPECT_FALSE((std::is_base_of_v<Tarnwickexception, SourceReader::EndBraceE>));
}

TEST(SourceExceptions, ADeclinedSplitIsAnEmptyMarker) {
  EXPECT_TRUE(std::is_empty_v<Compiler::DontWantToSplitE>);
  EXPECT_FALSE((std::is_base_of_v<Tarnwickexception, Compiler::DontWantToSplitE>));
}

}  // namespace
}  // namespace tarnwick
