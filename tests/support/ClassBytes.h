#pragma once

#include <string>

namespace tarnwick::test {

/// Class files as a compiler writes their beginnings.
struct ClassBytes {
  /// A number, the highest byte first.
  static std::string number(unsigned value, int bytes) {
    std::string text;
    for (int i = bytes; i-- > 0;) text += static_cast<char>(value >> (8U * static_cast<unsigned>(i)));
    return text;
  }
  static std::string text(const std::string& name) {
    return number(1, 1) + number(static_cast<unsigned>(name.size()), 2) + name;
  }
  static std::string named(unsigned kind, unsigned entry) { return number(kind, 1) + number(entry, 2); }

  /// `version` is the file's own number: 52 for Java 8. `count` is that of the constants, and one more.
  static std::string file(unsigned version, unsigned count, const std::string& constants, unsigned thisClass) {
    return number(0xCAFEBABE, 4) + number(0, 2) + number(version, 2) + number(count, 2) + constants + number(0x21, 2) +
           number(thisClass, 2);
  }

  /// The plainest one. The name has "/" between its parts; `java` is the version of Java, such as 17.
  static std::string of(const std::string& name, unsigned java) {
    return file(44 + java, 3, text(name) + named(7, 1), 2) + number(0, 8);
  }
};

}  // namespace tarnwick::test
