#include "../AppFixture.h"
#include "platform/win32/Registry.h"

#include <windows.h>

namespace tarnwick::test {
namespace {

using WindowsTarnwickAppTest = AppFixture;

const char archives[] = ".zip";
const char testClass[] = "Tarnwick.Test.Archive";

/// The class of archives is another one while it lives.
class ArchiveClass {
 public:
  explicit ArchiveClass(const std::string& command) {
    platform::readDefaultValue(HKEY_CLASSES_ROOT, {archives}, before_);
    set(archives, testClass);
    set(testClass + std::string("\\shell\\open\\command"), command);
  }
  ~ArchiveClass() {
    RegDeleteTreeA(HKEY_CLASSES_ROOT, testClass);
    if (before_.empty())
      RegDeleteKeyA(HKEY_CLASSES_ROOT, archives);
    else
      set(archives, before_);
  }
  ArchiveClass(const ArchiveClass&) = delete;
  ArchiveClass& operator=(const ArchiveClass&) = delete;

 private:
  static void set(const std::string& key, const std::string& value) {
    EXPECT_EQ(RegSetValueA(HKEY_CLASSES_ROOT, key.c_str(), REG_SZ, value.c_str(), 0), ERROR_SUCCESS);
  }
  std::string before_;
};

TEST_F(WindowsTarnwickAppTest, TheOpenerOfArchivesIsLookedUpAtConstruction) {
  const std::string command = R"("C:\zip tools\unpack.exe" -x "%1")";
  {
    const ArchiveClass known(command);
    app();
  }
  EXPECT_EQ(app().zipApplication().commandText(), command) << "and it is kept";
}

TEST_F(WindowsTarnwickAppTest, TheExecutablesNameIsFoldedBeforeItIsTrimmed) {
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=C:\\Java\\bin\\java.exe\\/"));
  EXPECT_EQ(app().exeFile(), "c:\\JaVa\\bIn\\jAvA.ExE");
  EXPECT_TRUE(app().parseSwitches("\\/EXEFILE=\"C:\\Java\\bin\\java.exe\"\\/"));
  EXPECT_EQ(app().exeFile(), "C:\\jAvA\\BiN\\JaVa.eXe") << "the quote has been a place of its own";
}

}  // namespace
}  // namespace tarnwick::test
