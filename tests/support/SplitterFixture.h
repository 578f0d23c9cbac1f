#pragma once

#include "platform/FileSystem.h"
#include "platform/Path.h"
#include "source/SourceSplitter.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace tarnwick::test {

/// Sources in a scratch folder, split without a compiler.
class SplitterFixture : public testing::Test {
 protected:
  /// What came of one source.
  struct Outcome {
    std::vector<std::string> names;    ///< for the compiler
    std::vector<std::string> pieces;   ///< the content of those of them that are there
    std::optional<std::string> fault;  ///< what the user is told
    bool declined = false;
  };

  std::string path(const std::string& name) const { return scratch_.file(name); }

  /// The file's text with the line ends that it has inside the program.
  std::string textOf(const std::string& name) const {
    std::string text = contentOf(path(name));
    std::erase(text, '\r');
    return text;
  }

  /// Writes the source and runs both passes.
  Outcome split(const std::string& name, const std::string& text) {
    writeFile(path(name), text);
    return split(name);
  }

  /// Runs both passes over what lies there; the pieces are gone afterwards.
  Outcome split(const std::string& name) {
    Outcome outcome;
    Tarnwickfile source = Tarnwickfile::unopened(path(name), FileMode::Read);
    SourceSplitter splitter(source.name(), [this] {
      ++questions_;
      return answer_();
    });
    try {
      splitter.run();
      outcome.names = splitter.fileNames();
      for (const auto& piece : outcome.names)
        if (isThere(piece)) outcome.pieces.push_back(textOf(piece));
    } catch (const SourceSplitter::CannotCompileE& failure) {
      outcome.fault = failure.message;
    } catch (const SourceSplitter::DontWantToSplitE&) {
      outcome.declined = true;
    }
    return outcome;
  }

  std::string faultOf(const std::string& name, const std::string& text) {
    const Outcome outcome = split(name, text);
    EXPECT_TRUE(outcome.fault) << "no complaint";
    return outcome.fault.value_or("");
  }

  bool isThere(const std::string& name) const { return platform::isFile(path(name)) || platform::isFolder(path(name)); }

  ScratchFolder scratch_;
  int questions_ = 0;
  std::function<bool()> answer_ = [] { return true; };
};

using Names = std::vector<std::string>;

}  // namespace tarnwick::test
