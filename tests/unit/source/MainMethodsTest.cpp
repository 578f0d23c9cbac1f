#include "source/OutlineReader.h"

#include <gtest/gtest.h>
#include <string>

namespace tarnwick::test {
namespace {

/// How a program may begin in the last type of a source.
MainMethod mainOf(const std::string& source) {
  return outlineOf(source, "File").types.back().main;
}

/// The same for a class with that member alone.
MainMethod mainWith(const std::string& member) {
  return mainOf("class A { " + member + " }");
}

TEST(MainMethods, KnowsTheClassicForms) {
  for (const char* method :
       {"public static void main(String[] a) { }", "static public void main(String... a) { }",
        "public static void main(String a[]) { }", "public static void main(final String[] a) { }",
        "@X(1) public final synchronized static strictfp void main(@Y final @Z(\")\") String @W [] a) throws E { }",
        "public static void main(java.lang.String[] a) { }", "public static void main(String @X ... a) { }",
        "public static <T> void main(String[] a) { }", "public static void main(java.lang.@X String[] a) { }",
        "public static void main(String\n/* a */[ ]// b\na) { }", "public static native void main(String[] a);",
        "int a; public static void main(String[] a) { } int main() { }"})
    EXPECT_EQ(mainWith(method), MainMethod::Classic) << method;
}

TEST(MainMethods, KnowsWhatIsNone) {
  for (const char* method : {"public static int main(String[] a) { }",
                             "public static void Main(String[] a) { }",
                             "private static void main(String[] a) { }",
                             "public static void main(String a) { }",
                             "public static void main(String[][] a) { }",
                             "public static void main(String[]... a) { }",
                             "public static void main(String[] a[]) { }",
                             "public static void main(Object[] a) { }",
                             "public static void main(x.String[] a) { }",
                             "public static void main(String[] a, int b) { }",
                             "public static void main(int b, String[] a) { }",
                             "public static void main(int a) { }",
                             "public static void main(List<String>[] a) { }",
                             "public static void main(java.lang.String a) { }",
                             "int main;",
                             "void f() { main(); }",
                             "public static main(String[] a) { }",
                             "public static void[] main(String[] a) { }",
                             "public static void main(String.A[] a) { }",
                             "void x(int main) { }",
                             "private void main() { }",
                             "Runnable a = () -> { main(null); };"})
    EXPECT_EQ(mainWith(method), MainMethod::None) << method;
}

TEST(MainMethods, KnowsTheNewerForms) {
  for (const char* method :
       {"void main() { }", "static void main() { }", "public static void main() { }",
        "protected void main(String[] a) { }", "static void main(String... a) { }", "void main(A this) { }",
        "void main(@X A this, String[] a) { }", "void main(A<B> this) { }"})
    EXPECT_EQ(mainWith(method), MainMethod::Newer) << method;
}

TEST(MainMethods, OfTwoFormsTheOneWithParametersCounts) {
  EXPECT_EQ(mainWith("static void main() { } void main(String[] a) { } A(int b) { }"), MainMethod::None);
  EXPECT_EQ(mainWith("void main() { } static void main(String[] a) { } A(int b) { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("void main() { } public static void main(String[] a) { }"), MainMethod::Classic);
}

TEST(MainMethods, AnObjectMustBeMadeWithoutArguments) {
  EXPECT_EQ(mainWith("void main() { } A() { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("void main() { } public <T> A() { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("void main() { } A() { } A(int b) { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("void main() { } A(int b) { } A() { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("void main() { } A(int b) { }"), MainMethod::None);
  EXPECT_EQ(mainWith("void main() { } A(int... b) { }"), MainMethod::None);
  EXPECT_EQ(mainWith("void main() { } <T> @X(1) A(int b) { }"), MainMethod::None);
  EXPECT_EQ(mainWith("void main() { } private A() { }"), MainMethod::None);
  EXPECT_EQ(mainWith("void main() { } void A(int b) { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("void main() { } B A(int b) { }"), MainMethod::Newer);
  EXPECT_EQ(mainWith("static void main() { } private A() { }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("abstract class A { void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("abstract class A { void main() { } A() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("abstract class A { static void main() { } }"), MainMethod::Newer);
}

TEST(MainMethods, AMemberMustStandForItself) {
  EXPECT_EQ(mainOf("class A { static class B { void main() { } } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("class A { class B { void main() { } } }"), MainMethod::None);
  EXPECT_EQ(mainOf("class A { class B { static void main() { } } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("class A { private static class B { void main() { } } }"), MainMethod::None);
  EXPECT_EQ(mainOf("class A { private static class B { void main() { } B() { } } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("interface A { class B { void main() { } } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("@interface A { class B { void main() { } } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("enum A { ; class B { void main() { } } }"), MainMethod::None);
  EXPECT_EQ(mainOf("class A { record B() { void main() { } } }"), MainMethod::Newer);
}

TEST(MainMethods, AMembersMethodIsNotItsOuterTypes) {
  const auto types = outlineOf("class A { class B { public static void main(String[] a) { } } }", "File").types;
  EXPECT_EQ(types.at(0).main, MainMethod::None);
  EXPECT_EQ(types.at(1).main, MainMethod::Classic);
  EXPECT_EQ(mainWith("Object a = new Object() { public static void main(String[] a) { } };"), MainMethod::None);
  EXPECT_EQ(mainOf("enum A { B { public static void main(String[] a) { } } }"), MainMethod::None);
}

TEST(MainMethods, KnowsInterfaces) {
  EXPECT_EQ(mainOf("interface A { static void main(String[] a) { } }"), MainMethod::Classic);
  EXPECT_EQ(mainOf("@interface A { static void main(String[] a) { } }"), MainMethod::Classic);
  EXPECT_EQ(mainOf("interface A { private static void main(String[] a) { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("interface A { static void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("interface A { default void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("interface A { void main(String[] a); }"), MainMethod::None);
  EXPECT_EQ(mainOf("interface A { protected static void main(String[] a) { } }"), MainMethod::Newer);
}

TEST(MainMethods, KnowsEnumsAndRecords) {
  EXPECT_EQ(mainOf("enum A { B; public static void main(String[] a) { } }"), MainMethod::Classic);
  EXPECT_EQ(mainOf("enum A { B; void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("enum A { B; A() { } void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("record A(int b) { public static void main(String[] a) { } }"), MainMethod::Classic);
  EXPECT_EQ(mainOf("record A() { void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("record A(int b) { void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("record A(int b) { A() { this(1); } void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("record A(int b) { A { } void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("record A() { A(int b) { this(); } void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("class B { private record A() { private A { } void main() { } } }"), MainMethod::None);
  EXPECT_EQ(mainOf("class B { private record A() { A { } void main() { } } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("class B { private record A() { void main() { } } }"), MainMethod::None);
}

TEST(MainMethods, KnowsCompactSources) {
  const auto mainOfFile = [](const std::string& source) { return outlineOf(source, "File").types.at(0).main; };
  EXPECT_EQ(mainOfFile("void main() { }"), MainMethod::Newer);
  EXPECT_EQ(mainOfFile("static void main() { }"), MainMethod::Newer);
  EXPECT_EQ(mainOfFile("public static void main(String[] a) { }"), MainMethod::Classic);
  EXPECT_EQ(mainOfFile("private void main() { }"), MainMethod::None);
  EXPECT_EQ(mainOfFile("class File { void main() { } } int a;"), MainMethod::None);
  // The types in it are members.
  EXPECT_EQ(mainOf("int a; class B { void main() { } }"), MainMethod::None);
  EXPECT_EQ(mainOf("int a; class B { static void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("int a; static class B { void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("int a; record B() { void main() { } }"), MainMethod::Newer);
  EXPECT_EQ(mainOf("class B { void main() { } }"), MainMethod::Newer);
}

TEST(MainMethods, TheNewerFormsWantANewerJava) {
  OutlineType type;
  EXPECT_FALSE(type.hasMain(25));
  type.main = MainMethod::Newer;
  EXPECT_FALSE(type.hasMain(24));
  EXPECT_TRUE(type.hasMain(25));
  type.main = MainMethod::Classic;
  EXPECT_TRUE(type.hasMain(1));
}

}  // namespace
}  // namespace tarnwick::test
