// Names that the system takes for no file.
#include "platform/FileNames.h"
#include "unit/app/PanelFixture.h"

namespace tarnwick::test {
namespace {

class UnusableNameTest : public PanelFixture {
 protected:
  UnusableNameTest() { saveEarlierRun(); }

  static std::string tooLong(const std::string& extension) { return std::string(5000, 'x') + extension; }
  static std::string refusal(const std::string& name) {
    const std::string reason = platform::whyNoFile(name);
    EXPECT_NE(reason, "");
    return "Can't open " + name + "\n" + reason;
  }
};

TEST_F(UnusableNameTest, WhatTheMatterIsIsToldBeforeTheUserIsAskedForAnother) {
  const std::string source = tooLong(".java");
  const std::string classFile = tooLong(".class");
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, source);
    desktop_.expectMessage(refusal(source));
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No .java file known.");
    panel.press(JAVAC);
    panel.page(TABS, 0).type(FIELD, classFile + " one");
    desktop_.expectMessage(refusal(classFile));
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No known .class file");
    panel.page(TABS, 0).press(RIGHT);
    exit(panel);
  });
}

TEST_F(UnusableNameTest, ALineEndInAFieldIsABlank) {
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    const std::string source = quoted(userFolder() + "A\nB.java");
    panel.type(SOURCE, source + "\r\none\ntwo");
    exit(panel);
  });
  EXPECT_EQ(saved("FILEVIEW_SOURCE").substr(0, (userFolder() + "A B.java").size()), userFolder() + "A B.java");
}

TEST_F(UnusableNameTest, OfAFileThatIsSimplyNotThereNothingIsTold) {
  runPanel([&](ScriptedWindow&, ScriptedWindow& panel) {
    panel.type(SOURCE, quoted(userFolder() + "Gone.java"));
    desktop_.expectOpenFile(std::nullopt);
    desktop_.expectHint("No .java file known.");
    panel.press(JAVAC);
    exit(panel);
  });
}

}  // namespace
}  // namespace tarnwick::test
