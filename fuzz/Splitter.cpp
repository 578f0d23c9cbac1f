// The splitter of sources with several public types: whatever the source, nothing stays behind and the source is not
// touched; of a sound source each type goes into a piece of its own. The first byte chooses the answer to the question
// before a split, and whether the rest is a source or tells the shape of one.
#include "JavaText.h"
#include "Property.h"
#include "source/SourceSplitter.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <unistd.h>

namespace tarnwick::fuzz {
namespace {

namespace fs = std::filesystem;

using Contents = std::map<std::string, std::string>;

/// A folder that goes away with the process.
class Folder {
 public:
  Folder() {
    // In memory where there is such a place: the disk would do most of the work.
    const fs::path memory = "/dev/shm";
    const fs::path place = ::access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path();
    std::string name = (place / "tarnwick-splitter-XXXXXX").string();
    require(::mkdtemp(name.data()) != nullptr, "a folder can be made");
    path_ = name + '/';
  }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string file(const std::string& name) const { return path_ + name; }

  void write(const std::string& name, const std::string& content) const {
    std::ofstream(file(name), std::ios::binary) << content;
  }

  Contents contents() const {
    Contents found;
    for (const auto& entry : fs::recursive_directory_iterator(path_)) {
      std::ifstream in(entry.path(), std::ios::binary);
      std::ostringstream content;
      content << in.rdbuf();
      found[entry.path().string().substr(path_.size())] = content.str();
    }
    return found;
  }

 private:
  std::string path_;
};

const Folder& folder() {
  static const Folder one;
  return one;
}

/// What a run came to.
struct Result {
  std::string failure;
  bool refused = false;
  int questions = 0;
  std::vector<std::string> fileNames;
  Contents before;
  Contents during;

  bool operator==(const Result&) const = default;
};

Result split(const std::string& source, bool answer) {
  folder().write("X.java", source);
  folder().write("keep.txt", "not ours");
  Result result;
  result.before = folder().contents();
  {
    auto file = Tarnwickfile::unopened(folder().file("X.java"), FileMode::Read);
    SourceSplitter splitter(file.name(), [&] {
      ++result.questions;
      return answer;
    });
    try {
      splitter.run();
      result.fileNames = splitter.fileNames();
    } catch (const SourceSplitter::CannotCompileE& failure) {
      result.failure = failure.message;
      require(!failure.message.empty(), "a failure says why");
    } catch (const SourceSplitter::DontWantToSplitE&) {
      result.refused = true;
    }
    result.during = folder().contents();
  }
  require(folder().contents() == result.before, "nothing stays behind, and nothing has changed");
  return result;
}

Result splitAny(const std::string& source, bool answer) {
  const Result result = split(source, answer);
  require(result == split(source, answer), "the same source gives the same result");
  require(result.questions <= 1, "the question comes once at most");
  require(!result.refused || (result.questions == 1 && !answer), "a refusal is the user's");
  Contents rest = result.during;
  for (const auto& [name, content] : result.before) {
    require(rest.count(name) == 1 && rest[name] == content, "a split writes over nothing");
    rest.erase(name);
  }
  const bool isSplit = result.questions == 1 && answer && result.failure.empty();
  const std::set<std::string> names(result.fileNames.begin(), result.fileNames.end());
  if (isSplit)
    require(result.fileNames.size() >= 2 && names.size() == result.fileNames.size(), "each type has its file");
  if (!isSplit && result.failure.empty()) require(rest.empty(), "without a split there are no pieces");
  return result;
}

void splitSound(const JavaText& java, bool answer) {
  const Result result = splitAny(java.source(), answer);
  const auto publics =
      std::count_if(java.types().begin(), java.types().end(), [](const auto& type) { return type.isPublic; });
  require(result.questions == (publics > 1 ? 1 : 0), "the question comes for several public types");
  require(result.refused == (publics > 1 && !answer), "the answer counts");
  std::string failure;
  if (java.types().empty())
    failure =
        "X.java :\nThere is neither a class nor an interface definition in the source file.\nIs it really a source "
        "file?";
  else if (publics == 1)
    failure =
        "X.java :\n\nJavac requires a class/interface with the attribute 'public' to have the same name as the source "
        "file.";
  requireSame(result.failure, failure, "only what is wrong is complained of");
  if (publics < 2 || !answer) return;
  require(result.fileNames.size() == java.types().size(), "there is a file for each type");
  for (std::size_t i = 0; i < java.types().size(); ++i) {
    const auto& type = java.types()[i];
    requireSame(result.fileNames[i], type.name + ".java", "the file bears the type's name");
    requireSame(result.during.at(type.name + ".java"), type.piece, "the piece holds package, imports and the type");
  }
}

}  // namespace
}  // namespace tarnwick::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick::fuzz;
  if (size == 0) return 0;
  const bool answer = (data[0] & 1) != 0;
  const std::string bytes = textOf(data + 1, size - 1);
  if (data[0] & 2)
    splitSound(JavaText(bytes), answer);
  else
    splitAny(bytes, answer);
  return 0;
}
