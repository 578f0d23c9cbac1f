#include "source/JavaReading.h"

#include "base/Tarnwickfile.h"
#include "settings/JdkDiscovery.h"
#include "settings/SettingsValues.h"
#include "source/JavaLexer.h"
#include "source/JavaOutline.h"
#include "source/SourceText.h"

#include <vector>

namespace tarnwick {

namespace {

/// True if each brace has its partner.
bool isBalanced(const std::string& text) {
  JavaLexer lexer(text);
  int depth = 0;
  for (Lexeme lexeme = lexer.next(); lexeme.kind != Lexeme::Kind::End; lexeme = lexer.next()) {
    if (lexeme.isMark('{')) ++depth;
    if (lexeme.isMark('}') && --depth < 0) return false;
  }
  return depth == 0;
}

}  // namespace

JavaReading javaReading(const SettingsValues& settings) {
  if (!settings.newerJava) return {};
  return {true, jdkVersion(settings.javaPath)};
}

bool newerWayTakes(const std::string& path) {
  try {
    const std::string name = Filename(path).baseName();
    const std::string text = sourceText(path);
    if (!isBalanced(text)) return false;
    const JavaOutline outline = outlineOfFile(text, name);
    if (outline.types.empty()) return !outline.module.empty() || !outline.package.empty();
    std::vector<std::string> publicNames;
    for (const auto& type : outline.types)
      if (!type.parent && type.isPublic) publicNames.push_back(type.name);
    return publicNames.size() != 1 || publicNames.front() == name;
  } catch (const Tarnwickfile::FileNotOpenE&) {
    return false;
  }
}

}  // namespace tarnwick
