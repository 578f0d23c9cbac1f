#include "base/ClassFile.h"

#include "platform/FileSystem.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>

namespace tarnwick {

namespace {

/// The file can't be what it should be.
struct NoClassE {};

/// Numbers and texts from the beginning of a file on. Throws NoClassE where it ends too soon.
class ClassBytes {
 public:
  explicit ClassBytes(const std::string& path) {
    // To open a pipe could wait for ever.
    if (!platform::isSpecial(path)) file_.reset(platform::openFile(path, "rb"));
    if (!file_) throw NoClassE{};
  }

  std::uint32_t number(int bytes) {
    std::array<unsigned char, 4> buffer{};
    read(buffer.data(), static_cast<std::size_t>(bytes));
    std::uint32_t value = 0;
    for (int i = 0; i < bytes; ++i) value = value << 8U | buffer[static_cast<std::size_t>(i)];
    return value;
  }
  std::string text() {
    std::string bytes(number(2), '\0');
    read(bytes.data(), bytes.size());
    return bytes;
  }
  void skip(std::size_t count) {
    std::array<char, 65535> buffer;
    read(buffer.data(), count);
  }
  long place() const { return place_; }
  void goBackTo(long place) {
    if (std::fseek(file_.get(), place, SEEK_SET) != 0) throw NoClassE{};
  }

 private:
  void read(void* target, std::size_t size) {
    // No compiler makes such names; the places stay below what a file's place can be.
    constexpr long most = 64L * 1024 * 1024;
    if (std::fread(target, 1, size, file_.get()) != size || place_ > most) throw NoClassE{};
    place_ += static_cast<long>(size);
  }

  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_{nullptr, &std::fclose};
  long place_ = 0;
};

/// The table of constants, of which only names of classes are kept.
class Constants {
 public:
  explicit Constants(ClassBytes& bytes) : entries_(bytes.number(2)) {
    // Counted from 1.
    for (std::size_t i = 1; i < entries_.size(); ++i) {
      const auto kind = static_cast<Kind>(bytes.number(1));
      take(bytes, kind, entries_[i]);
      // Each of these takes two places.
      if (kind == Kind::Long || kind == Kind::Double) ++i;
    }
  }

  /// Where the name of a class stands in the file.
  long placeOfName(std::size_t classIndex) const {
    const long place = at(static_cast<std::size_t>(at(classIndex).name)).text;
    if (place == 0) throw NoClassE{};
    return place;
  }

 private:
  enum class Kind {
    Text = 1,
    Integer = 3,
    Float = 4,
    Long = 5,
    Double = 6,
    Class = 7,
    String = 8,
    Field = 9,
    Method = 10,
    InterfaceMethod = 11,
    NameAndType = 12,
    MethodHandle = 15,
    MethodType = 16,
    Dynamic = 17,
    InvokeDynamic = 18,
    Module = 19,
    Package = 20,
  };

  struct Entry {
    long text = 0;           ///< the place of a text; 0 for anything else
    std::uint32_t name = 0;  ///< of a class: the entry of its name; 0 for anything else
  };

  static void take(ClassBytes& bytes, Kind kind, Entry& entry) {
    switch (kind) {
      case Kind::Text:
        entry.text = bytes.place();
        return bytes.skip(bytes.number(2));
      case Kind::Class:
        entry.name = bytes.number(2);
        return;
      case Kind::String:
      case Kind::MethodType:
      case Kind::Module:
      case Kind::Package:
        return bytes.skip(2);
      case Kind::MethodHandle:
        return bytes.skip(3);
      case Kind::Integer:
      case Kind::Float:
      case Kind::Field:
      case Kind::Method:
      case Kind::InterfaceMethod:
      case Kind::NameAndType:
      case Kind::Dynamic:
      case Kind::InvokeDynamic:
        return bytes.skip(4);
      case Kind::Long:
      case Kind::Double:
        return bytes.skip(8);
    }
    throw NoClassE{};
  }

  const Entry& at(std::size_t index) const {
    if (index == 0 || index >= entries_.size()) throw NoClassE{};
    return entries_[index];
  }

  std::vector<Entry> entries_;
};

/// Java 1.1 wrote 45; each version since has added one.
int takeVersion(ClassBytes& bytes) {
  constexpr std::uint32_t mark = 0xCAFEBABE;
  if (bytes.number(4) != mark) throw NoClassE{};
  bytes.skip(2);
  const int version = static_cast<int>(bytes.number(2)) - 44;
  if (version < 1) throw NoClassE{};
  return version;
}

/// What no name holds, and a command line or a message could not bear.
bool isNamePart(const std::string& part) {
  return !part.empty() && std::none_of(part.begin(), part.end(), [](char c) {
    return std::string_view(".;[").find(c) != std::string_view::npos || (c >= 0 && c < ' ') || c == 127;
  });
}

std::vector<std::string> partsOf(const std::string& name) {
  std::vector<std::string> parts;
  for (std::size_t begin = 0; begin <= name.size();) {
    const auto end = std::min(name.find('/', begin), name.size());
    parts.push_back(name.substr(begin, end - begin));
    begin = end + 1;
  }
  if (!std::all_of(parts.begin(), parts.end(), isNamePart)) throw NoClassE{};
  return parts;
}

}  // namespace

std::string ClassFile::fullName() const {
  std::string text;
  for (const auto& part : name) text += (text.empty() ? "" : ".") + part;
  return text;
}

std::optional<ClassFile> readClassFile(const std::string& path) {
  try {
    ClassBytes bytes(path);
    ClassFile file;
    file.javaVersion = takeVersion(bytes);
    const Constants constants(bytes);
    bytes.skip(2);
    bytes.goBackTo(constants.placeOfName(bytes.number(2)));
    file.name = partsOf(bytes.text());
    return file;
  } catch (const NoClassE&) {
    return std::nullopt;
  }
}

std::optional<int> classFileVersion(const std::string& path) {
  try {
    ClassBytes bytes(path);
    return takeVersion(bytes);
  } catch (const NoClassE&) {
    return std::nullopt;
  }
}

}  // namespace tarnwick
