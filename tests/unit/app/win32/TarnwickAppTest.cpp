#include "../AppFixture.h"

namespace tarnwick::test {
namespace {

using WindowsTarnwickAppTest = AppFixture;

TEST_F(WindowsTarnwickAppTest, TheExecutablesNameIsFoldedBeforeItIsTrimmed) {
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=C:\\Java\\bin\\java.exe\\/"));
  EXPECT_EQ(app().exeFile(), "c:\\JaVa\\bIn\\jAvA.ExE");
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=\"C:\\Java\\bin\\java.exe\"\\/"));
  EXPECT_EQ(app().exeFile(), "C:\\jAvA\\BiN\\JaVa.eXe") << "the quote has been a place of its own";
}

}  // namespace
}  // namespace tarnwick::test
