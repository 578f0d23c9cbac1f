#include "resources/DialogLayout.h"
#include "resources/SourceLayouts.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tarnwick {
namespace {

/// What can be read, in its order; the default button is marked.
void collect(const DialogItem& item, std::vector<std::string>& texts) {
  if (item.text.find_first_not_of(' ') != std::string::npos) texts.push_back(item.text + (item.isDefault ? " *" : ""));
  for (const auto& child : item.children) collect(child, texts);
}

TEST(SourceLayouts, ThePortabilityWarning) {
  const DialogLayout& warning = portabilityWarningLayout();
  EXPECT_EQ(warning.title, "Java Portability Warning");
  std::vector<std::string> texts;
  collect(warning.content, texts);
  EXPECT_EQ(texts, (std::vector<std::string>{
                       "javac accepts source files containing multiple classes and interfaces,\n"
                       "but only one of them may be public.\n\n"
                       "This source file contains more than one class or interface with the 'public' attribute.",
                       "Tarnwick is capable of splitting this source file for the compilation.\n\n"
                       "Please decide if you want to correct your source code for full portability,\n"
                       "or use Tarnwick's capabilities of compiling nonportable source files.",
                       "Compile *", "Cancel", "Don't display this warning for some time"}));
}

}  // namespace
}  // namespace tarnwick
