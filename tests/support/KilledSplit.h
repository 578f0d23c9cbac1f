#pragma once

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "support/TestProgram.h"

#include <string>

namespace tarnwick::test {

/// Leaves in `folder`, which ends in a separator, what a process leaves that is killed while the compiler runs: the
/// pieces of two classes A and B, and "mine", which was the user's A.java.
inline void leaveKilledSplit(const std::string& folder) {
  const auto inner = [&folder](const std::string& room, const std::string& name) {
    return folder + "Tarnwick_split1.tmp" + platform::folderSeparator + room + platform::folderSeparator + name;
  };
  for (const char* room : {"writing", "alone", "over", "kept"}) platform::makeFolders(inner(room, ""));
  writeFile(folder + "Tarnwick_split1.tmp" + platform::folderSeparator + "in_use", "");
  writeFile(inner("over", "A.java"), "public class A {}");
  writeFile(inner("kept", "A.java"), "mine");
  writeFile(inner("alone", "B.java"), " public class B {}");
  writeFile(folder + "A.java", "public class A {}");
  writeFile(folder + "B.java", " public class B {}");
}

}  // namespace tarnwick::test
