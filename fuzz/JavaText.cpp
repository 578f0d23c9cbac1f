#include "JavaText.h"

#include <utility>

namespace tarnwick::fuzz {

JavaText::JavaText(std::string_view choices) : choices_(choices) {
  gap();
  if (choice(2)) {
    package_ = name('p') + "." + name('q');
    write("package " + package_ + ";");
    head_ = std::exchange(delivered_, "");
  }
  while (!choices_.empty() && types_.size() < 8) {
    if (choice(3) == 0)
      addImport();
    else
      addType();
  }
  gap();
}

unsigned JavaText::choice(unsigned count) {
  if (choices_.empty()) return 0;
  const auto value = static_cast<unsigned char>(choices_.front());
  choices_.remove_prefix(1);
  return value % count;
}

void JavaText::write(std::string_view text) {
  source_ += text;
  delivered_ += text;
}

/// White space, maybe with a comment in it. A blank stands behind a block comment: the scanner does not look at quotes
/// there.
void JavaText::gap() {
  switch (choice(6)) {
    case 0:
      write(" ");
      break;
    case 1:
      write("\n\t");
      break;
    case 2:
      source_ += "/* class { \" ' public */";
      write(" ");
      break;
    case 3:
      write(" ");
      source_ += "// } interface ; \" /*";
      write("\n");
      break;
    case 4:
      source_ += "/***/";
      write("\n ");
      break;
    default:
      write("\f");
      break;
  }
}

std::string JavaText::name(char letter) {
  return letter + std::to_string(named_++);
}

void JavaText::addImport() {
  gap();
  write("import " + name('i') + (choice(2) ? ".*;" : ".A;"));
  head_ += std::exchange(delivered_, "");
}

std::vector<std::string> JavaText::names(std::string_view word, unsigned most) {
  std::vector<std::string> list;
  const unsigned count = choice(most + 1);
  for (unsigned i = 0; i < count; ++i) {
    gap();
    if (i == 0)
      write(word);
    else
      write(",");
    gap();
    list.push_back("x." + name('S'));
    write(list.back());
  }
  return list;
}

void JavaText::addType() {
  Type type;
  type.isClass = choice(3) != 0;
  type.isPublic = choice(2) != 0;
  type.name = name('T');
  gap();
  if (choice(3) == 0) write("abstract ");
  if (type.isPublic) {
    write("public");
    gap();
  }
  if (choice(3) == 0) write("strictfp ");
  write(type.isClass ? "class" : "interface");
  gap();
  write(type.name);
  type.extendsList = names("extends", type.isClass ? 1 : 3);
  if (type.isClass) type.implementsList = names("implements", 3);
  gap();
  write("{");
  addMembers(type);
  write("}");
  type.piece = head_ + std::exchange(delivered_, "");
  types_.push_back(std::move(type));
}

void JavaText::addMembers(Type& type) {
  for (unsigned member = choice(8); member != 0; member = choice(8)) {
    gap();
    switch (member) {
      case 1:
        write("int a = 1; ");
        break;
      case 2:
        write("String s = \"x // y \\\" /* ; \"; ");
        break;
      case 3:
        write("char c = '\\'', d = '\"', e = '\\u0041'; ");
        break;
      case 4:
        write("int[] n = { 1, 2 }; ");
        break;
      case 5:
        write("void f(int x) { if (x > 0) { f(x / 2); } else { x = '/'; } }");
        break;
      case 6:
        write("class N { public static void main(String[] a) { } }");
        break;
      default:
        addMain(type);
        break;
    }
  }
  gap();
}

void JavaText::addMain(Type& type) {
  constexpr std::string_view heads[] = {"public static void", "static public final void", "public void", "static void",
                                        "public static int"};
  const unsigned which = choice(5);
  write(heads[which]);
  gap();
  write("main");
  gap();
  write("(String[] a)");
  gap();
  write("{ }");
  if (type.isClass && which < 2) ++type.mainCount;
}

}  // namespace tarnwick::fuzz
