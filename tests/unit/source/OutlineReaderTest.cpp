#include "source/OutlineReader.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::test {
namespace {

using namespace std::string_literals;
using Names = std::vector<std::string>;

JavaOutline outline(const std::string& source) {
  return outlineOf(source, "File");
}

const char* wordOf(TypeKind kind) {
  constexpr const char* words[] = {"class ", "interface ", "enum ", "record ", "@interface "};
  return words[static_cast<int>(kind)];
}

/// The kinds and binary names of all types, in order.
std::string types(const std::string& source) {
  const JavaOutline found = outline(source);
  std::string text;
  for (const auto& type : found.types)
    text += (text.empty() ? "" : ", ") + (wordOf(type.kind) + found.binaryName(type));
  return text;
}

/// What stands from the beginning of that type to its end.
std::string textOf(const std::string& source, std::string_view name) {
  const JavaOutline found = outline(source);
  const OutlineType* type = found.find(name);
  return type ? source.substr(type->begin, type->end - type->begin) : "(not found)";
}

OutlineType first(const std::string& source) {
  const auto all = outline(source).types;
  return all.empty() ? OutlineType() : all.front();
}

TEST(OutlineReader, FindsTheKindsOfTypes) {
  EXPECT_EQ(types("class A { } interface B { } enum C { } record D() { } @interface E { }"),
            "class A, interface B, enum C, record D, @interface E");
  EXPECT_EQ(types("@ interface A { }"), "@interface A");
  EXPECT_EQ(types("@ /* a */ interface A { }"), "@interface A");
  EXPECT_EQ(types(""), "");
  EXPECT_EQ(types(" \t\f\r\n"), "");
  EXPECT_EQ(types("class\fA\f{\f}\f"), "class A");
}

TEST(OutlineReader, TakesTheNameWithoutTypeParameters) {
  EXPECT_EQ(types("class A<T> { } interface B < T extends C<D<E>> & F<?>, G > { } record H<T>(T t) { }"),
            "class A, interface B, record H");
  EXPECT_EQ(types("class A<@X(b = \">\", c = {1}) T> { }"), "class A");
}

TEST(OutlineReader, NamesMembersByTheirOuterTypes) {
  EXPECT_EQ(types("class A { class B { interface C { } } enum D { } record E() { } @interface F { } } class G { }"),
            "class A, class A$B, interface A$B$C, enum A$D, record A$E, @interface A$F, class G");
  EXPECT_EQ(types("interface A { class B { } } @interface C { enum D { } } enum E { ; class F { } } record G() { class "
                  "H { } }"),
            "interface A, class A$B, @interface C, enum C$D, enum E, class E$F, record G, class G$H");
  EXPECT_EQ(types("class A { int a; void f() { } class B { } Object o; A() { } static { } class C { } }"),
            "class A, class A$B, class A$C");
}

TEST(OutlineReader, LeavesOutLocalAndAnonymousTypes) {
  EXPECT_EQ(types("class A { void f() { class B { } enum C { } } }"), "class A");
  EXPECT_EQ(types("class A { { class B { } } static { class C { } } }"), "class A");
  EXPECT_EQ(types("class A { Object a = new Object() { class B { } }, b = new Object() { class C { } }; class D { } }"),
            "class A, class A$D");
  EXPECT_EQ(types("class A { Runnable a = () -> { class B { } }; class C { } }"), "class A, class A$C");
  EXPECT_EQ(types("class A { int[] a = { 1, 2 }, b[] = {{ 1 }, { }}; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { A() throws B { class C { } } class D { } }"), "class A, class A$D");
}

TEST(OutlineReader, KnowsTheConstantsOfAnEnum) {
  EXPECT_EQ(types("enum A { B, C(1) { class D { } }, @X({1, 2}) E { int e; }, F(new Object() { class G { } }), ; class "
                  "H { } }"),
            "enum A, class A$H");
  EXPECT_EQ(types("enum A { B } class C { }"), "enum A, class C");
  EXPECT_EQ(types("enum A { B, } class C { }"), "enum A, class C");
  EXPECT_EQ(types("enum A { ; enum B { C; record D() { } } }"), "enum A, enum A$B, record A$B$D");
  EXPECT_EQ(types("enum A { B { void f() { } }; int record, sealed; }"), "enum A");
}

TEST(OutlineReader, KnowsRecordsFromNames) {
  EXPECT_EQ(types("record A() { } record B<T>(T t) { }"), "record A, record B");
  EXPECT_EQ(types("class A { int record; void record() { } record() { return null; } }"), "class A");
  EXPECT_EQ(types("class A { record.B b; record[] c; record<D> e; record f; record g = null; }"), "class A");
  EXPECT_EQ(types("class A { record B(int[] c, @X(d = \")\") String... e) implements F<G> { class H { } } }"),
            "class A, record A$B, class A$B$H");
  EXPECT_EQ(types("class A { B record(int c) { } }"), "class A");
}

TEST(OutlineReader, KnowsSealedTypesFromNames) {
  EXPECT_TRUE(first("sealed class A { }").isSealed);
  EXPECT_TRUE(first("public sealed abstract class A { }").isSealed);
  EXPECT_TRUE(first("sealed @X interface A { }").isSealed);
  EXPECT_TRUE(first("sealed /* a */ public // b\n interface A { }").isSealed);
  EXPECT_EQ(types("sealed @X(1) class A { } sealed sealed class B { } sealed non-sealed class C { }"),
            "class A, class B, class C");
  EXPECT_FALSE(first("class A { sealed b; sealed c() { } sealed.D d; }").isSealed);
  EXPECT_EQ(types("class A { int sealed; sealed b; @interface B { } sealed[] c; class D { } }"),
            "class A, @interface A$B, class A$D");
  EXPECT_EQ(types("class A { sealed @interface B { } }"), "class A, @interface A$B");
}

TEST(OutlineReader, KnowsWhatMayFollowSealed) {
  for (const char* word :
       {"public", "protected", "private", "static", "abstract", "final", "strictfp", "sealed", "non-sealed"})
    EXPECT_TRUE(outline("class A { sealed "s + word + " class B { } }").types.at(1).isSealed) << word;
  for (const char* type : {"class B", "interface B", "enum B", "record B()", "@X class B"})
    EXPECT_TRUE(outline("class A { sealed "s + type + " { } }").types.at(1).isSealed) << type;
}

TEST(OutlineReader, KnowsAllModifiers) {
  for (const char* word : {"public", "protected", "private", "static", "abstract", "final", "strictfp", "native",
                           "transient", "volatile", "synchronized", "default", "sealed", "non-sealed", "@X"}) {
    const std::string type = word + " class B { }"s;
    EXPECT_EQ(textOf("class A { int a; " + type + " }", "A$B"), type);
    const std::string twice = word + (" @Y " + type);
    EXPECT_EQ(textOf("class A { int a; " + twice + " }", "A$B"), twice);
  }
}

TEST(OutlineReader, KnowsNonSealedInOnePiece) {
  EXPECT_EQ(textOf("final class A { } non-sealed class B { }", "B"), "non-sealed class B { }");
  EXPECT_FALSE(first("non-sealed class A { }").isSealed);
  EXPECT_EQ(textOf("public non-sealed abstract class B { }", "B"), "public non-sealed abstract class B { }");
  EXPECT_EQ(types("non -sealed class A { }"), "");
  EXPECT_EQ(types("non- sealed class A { }"), "");
  EXPECT_EQ(types("class A { int non; int sealed; int a = non-sealed; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("non+sealed class A { }"), "");
  EXPECT_EQ(types("non-final class A { }"), "");
}

TEST(OutlineReader, TellsWhetherPermittedTypesAreNamed) {
  EXPECT_TRUE(first("sealed class A permits B, C { }").namesPermitted);
  EXPECT_TRUE(first("sealed interface A<T> extends D permits e.B { }").namesPermitted);
  EXPECT_FALSE(first("sealed class A { }").namesPermitted);
  EXPECT_FALSE(first("class permits extends permits { }").namesPermitted);
  EXPECT_TRUE(first("class permits extends permits permits permits { }").namesPermitted);
  EXPECT_EQ(first("sealed class A extends B permits C { }").extendsList, Names({"B"}));
  EXPECT_EQ(first("sealed class A implements B permits C { }").implementsList, Names({"B"}));
  EXPECT_FALSE(first("record A(int permits) { }").namesPermitted);
}

TEST(OutlineReader, TakesSupertypesWithoutTypeArguments) {
  EXPECT_EQ(first("class A extends b.C<D>.E<F, G> implements H<I[]>, j.K { }").extendsList, Names({"b.C.E"}));
  EXPECT_EQ(first("class A extends b.C<D>.E<F, G> implements H<I[]>, j.K { }").implementsList, Names({"H", "j.K"}));
  EXPECT_EQ(first("class A<T extends X> implements B { }").extendsList, Names());
  EXPECT_EQ(first("interface A extends B, C<D<? extends E>> { }").extendsList, Names({"B", "C"}));
  EXPECT_EQ(first("interface A extends B { }").implementsList, Names());
  EXPECT_EQ(first("enum A implements B, C { D }").implementsList, Names({"B", "C"}));
  EXPECT_EQ(first("record A(int x) implements B { }").implementsList, Names({"B"}));
  EXPECT_EQ(first("class A extends @X(\"implements Y\") b.@Z C { }").extendsList, Names({"b.C"}));
  EXPECT_EQ(first("class A extends b . /* c */ D { }").extendsList, Names({"b.D"}));
  EXPECT_EQ(first("class A extends B<C<D>, E> { }").extendsList, Names({"B"}));
}

TEST(OutlineReader, TellsWhatIsPublic) {
  EXPECT_TRUE(first("public class A { }").isPublic);
  EXPECT_TRUE(first("@X abstract @Y(public = 1) public final interface A { }").isPublic);
  EXPECT_FALSE(first("class A { public int a; }").isPublic);
  EXPECT_FALSE(first("@X(Y.class) private protected abstract class A { public class B { } }").isPublic);
  EXPECT_TRUE(outline("class A { public class B { } }").types.at(1).isPublic);
  EXPECT_FALSE(outline("class A { public int a; class B { } }").types.at(1).isPublic);
}

TEST(OutlineReader, BeginsWithTheFirstModifierAndEndsWithTheBrace) {
  const std::string source = "/** a */ @X public class A { @Y enum B { } } /* b */ interface C { /* } */ }; // c";
  EXPECT_EQ(textOf(source, "A"), "@X public class A { @Y enum B { } }");
  EXPECT_EQ(textOf(source, "A$B"), "@Y enum B { }");
  EXPECT_EQ(textOf(source, "C"), "interface C { /* } */ }");
  EXPECT_EQ(textOf("; @ interface A { }", "A"), "@ interface A { }");
  EXPECT_EQ(textOf("\xEF\xBB\xBF"
                   "class A { }",
                   "A"),
            "class A { }");
}

TEST(OutlineReader, LeadsFromTheEndOfWhatComesBefore) {
  const std::string source =
      "import a.B; /** c */ class D { int e; /** f */ class G { } } /* h */ ; // i\n class J { }";
  const auto all = outline(source).types;
  const auto lead = [&](std::size_t place) {
    return source.substr(all.at(place).lead, all.at(place).begin - all.at(place).lead);
  };
  EXPECT_EQ(lead(0), " /** c */ ");
  EXPECT_EQ(lead(1), " /** f */ ");
  EXPECT_EQ(lead(2), " // i\n ");
  const std::string escaped = "class A { } // \\u0041 \\u000a ; /* b */ class B { }";
  EXPECT_EQ(outline(escaped).types.at(1).lead, escaped.find(" /*"));
}

TEST(OutlineReader, PassesOverComments) {
  EXPECT_EQ(types("/* class A { */ class B { // } class C {\n } // class D { }"), "class B");
  EXPECT_EQ(types("/*/ class A { } /*/ class B { } /**/ class C { } /***/"), "class B, class C");
  EXPECT_EQ(types("// a\rclass A { } // b\r\nclass B { } // c\nclass C { }"), "class A, class B, class C");
  EXPECT_EQ(types("class/**/A/*{*/{ int a = 4 / 2 /*}*/; }"), "class A");
  EXPECT_EQ(types("class A { String s = \"/*\"; } class B { char c = '/'; } /* class C { } */"), "class A, class B");
  EXPECT_EQ(types("class A { } /* class B { }"), "class A");
  EXPECT_EQ(types("class A { } /* class B { } *"), "class A");
  EXPECT_EQ(types("class A { } /"), "class A");
  EXPECT_EQ(types("class A { /* it's \" not } */ class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { /* } */ // }\n } class B { } int a = /* ; class C { } } */ 1; }"),
            "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { int x = 1 / 2; } class B { } }"), "class A, class A$B");
}

TEST(OutlineReader, PassesOverStringsAndCharacters) {
  EXPECT_EQ(
      types(R"(class A { String s = "}" + "\"}" + "\\"; char c = '}', d = '\'', e = '"', f = '\\'; class B { } })"),
      "class A, class A$B");
  EXPECT_EQ(types(R"(class A { void f() { g("}", '}', "\\", '\\', "'", '"', "//", "/*"); } class B { } })"),
            "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\"; String t = \"{\"; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("@X(\"}\") class A { @Y('{') int a; @Z({\")\"}) class B { } }"), "class A, class A$B");
}

TEST(OutlineReader, EndsAStringWithItsLine) {
  EXPECT_EQ(types("class A { void f() { g(\"{ \n } class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { g(\"{ \r } class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { g(\"{ \\\n } class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { g('{ \n } class B { } }"), "class A, class A$B");
}

TEST(OutlineReader, PassesOverTextBlocks) {
  EXPECT_EQ(types("class A { String s = \"\"\"\n } \" \"\" { \\\"\"\" } \\\\\"\"\"; class B { } }"),
            "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\"\"\n /* \"\"\"; class B { } /* */ }"), "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\"\"\n \"\"\"\"; class B { } }"), "class A");
  EXPECT_EQ(types("class A { String s = \"\"\"\n '\"\"\"; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\"\"\n \\"), "class A");
  EXPECT_EQ(types("class A { String s = \"\"\"\n \"x } \"\"\"; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\"\"\n \"\"x } \"\"\"; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\"\"\n \"\"\"\" ;\n } class B { }"), "class A, class B");
}

TEST(OutlineReader, DecodesUnicodeEscapes) {
  EXPECT_EQ(types("class A \\uuu007b class B { \\u007d \\u007D"), "class A, class A$B");
  EXPECT_EQ(types("cl\\u0061ss \\u0041b { }"), "class Ab");
  EXPECT_EQ(types("class A { /* \\u002a/ class B { } /\\u002a } *\\u002f }"), "class A, class A$B");
  EXPECT_EQ(types("class A { // a \\u000a class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\\\\u0022; }\"; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { String s = \"\\u005c\"}\"; char c = '\\u005c''; class B { } }"), "class A, class A$B");
  EXPECT_EQ(textOf("/* \\u0041 */ class A { \\u007d class B { }", "A"), "class A { \\u007d");
  EXPECT_EQ(textOf("/* \\u0041 */ class A { \\u007d \\u0063lass B { }", "B"), "\\u0063lass B { }");
}

TEST(OutlineReader, PassesOverAnnotations) {
  EXPECT_EQ(types("@A @b.C @D(1) @E(f = (2), g = @H({\"}\", \")\"})) class I { }"), "class I");
  EXPECT_EQ(types("class A { @B(c = {}) int d; @E List<@F(\"<\") G> h() { } @I class J { } }"), "class A, class A$J");
  EXPECT_EQ(types("class A { int b() @C({}) [] { } void d(@E({1}) int f) { } class G { } }"), "class A, class A$G");
  EXPECT_EQ(types("@interface A { int b() default 1; int[] c() default {1, 2}; D d() default @D({3}); class E { } }"),
            "@interface A, class A$E");
  EXPECT_EQ(types("@A @ b . C /* d */ ( ) class E { }"), "class E");
}

TEST(OutlineReader, PassesOverMembers) {
  EXPECT_EQ(types("abstract class A { abstract <T extends B & C<D>> E<T>[] f(G g) throws H, @I J; class K { } }"),
            "class A, class A$K");
  EXPECT_EQ(types("interface A { default void b() { } static void c() { } private void d() { } class E { } }"),
            "interface A, class A$E");
  EXPECT_EQ(types("class A { boolean b = c < d, e = f > g; int h = i ? j : k; class L { } }"), "class A, class A$L");
  EXPECT_EQ(types("class A { Class<?> b = B.class; Class<?>[] c = { C.class }; class D { } }"), "class A, class A$D");
  EXPECT_EQ(types("class A { int b = switch (c) { case 1 -> { yield 2; } default -> 3; }; class D { } }"),
            "class A, class A$D");
  EXPECT_EQ(types("class A { ;; class B { } ; }"), "class A, class A$B");
}

TEST(OutlineReader, ReadsPackageAndImports) {
  const JavaOutline found =
      outline("@X(\";\") package a . b /* c */ .d; import e.F; import static g.H.*; import i.* ; class J { }");
  EXPECT_EQ(found.package, "a.b.d");
  EXPECT_TRUE(found.packageIsAnnotated);
  ASSERT_EQ(found.imports.size(), 3U);
  EXPECT_EQ(found.imports[0].name, "e.F");
  EXPECT_FALSE(found.imports[0].isStatic);
  EXPECT_EQ(found.imports[1].name, "g.H.*");
  EXPECT_TRUE(found.imports[1].isStatic);
  EXPECT_EQ(found.imports[2].name, "i.*");
  EXPECT_EQ(found.fullName(found.types.at(0)), "a.b.d.J");
  EXPECT_FALSE(outline("package a;").packageIsAnnotated);
  EXPECT_EQ(outline("class A { }").package, "");
  EXPECT_TRUE(outline("class A { import b.C; }").imports.empty());
  EXPECT_TRUE(outline("import *; import ; import").imports.empty());
}

TEST(OutlineReader, KnowsImportsOfModules) {
  const auto imports = outline("import module java.base; import module.a.B; import static module.*;").imports;
  ASSERT_EQ(imports.size(), 3U);
  EXPECT_EQ(imports[0].name, "java.base");
  EXPECT_TRUE(imports[0].isModule);
  EXPECT_EQ(imports[1].name, "module.a.B");
  EXPECT_FALSE(imports[1].isModule);
  EXPECT_EQ(imports[2].name, "module.*");
  EXPECT_FALSE(imports[2].isModule);
}

TEST(OutlineReader, ReadsModules) {
  const JavaOutline found = outline("import a.B; @Deprecated module c.d { requires e; exports f to g, h; }");
  EXPECT_EQ(found.module, "c.d");
  EXPECT_FALSE(found.moduleIsOpen);
  EXPECT_TRUE(found.types.empty());
  EXPECT_TRUE(outline("open module a { }").moduleIsOpen);
  EXPECT_EQ(outline("open module a { }").module, "a");
  EXPECT_EQ(outline("module open { }").module, "open");
  EXPECT_EQ(outline("class module { open open; module module; }").module, "");
  EXPECT_EQ(outline("class A { } module b { }").module, "");
  EXPECT_EQ(outline("open class A { }").module, "");
  EXPECT_EQ(outline("int a; module b { }").module, "");
  EXPECT_EQ(outline("module { }").module, "");
}

TEST(OutlineReader, KnowsCompactSources) {
  EXPECT_EQ(types("void main() { } class A { class B { } } int c;"), "class File, class File$A, class File$A$B");
  const std::string source = "import a.B; public class C { } /* d */ int e = 1; ";
  const JavaOutline found = outline(source);
  EXPECT_TRUE(found.isCompact);
  EXPECT_EQ(found.types.at(0).begin, 0U);
  EXPECT_EQ(found.types.at(0).end, source.size());
  EXPECT_FALSE(found.types.at(0).isPublic);
  EXPECT_EQ(found.binaryName(found.types.at(1)), "File$C");
}

TEST(OutlineReader, AFieldOrMethodOutsideMakesASourceCompact) {
  for (const char* member : {"int a;", "int a = 1;", "int a, b;", "int a[];", "int[] a;", "a.B<C> d;", "B<C> d() { }",
                             "<T> void f(T t) { }", "static void f() throws E { }", "record a;", "int a() { }",
                             "@X final var a = 1;", "B<@X(1 > 2) C> d;", "module a;", "open a;", "sealed a;"})
    EXPECT_TRUE(outline(member).isCompact) << member;
  for (const char* text : {";",      "{ }",  "static { }", "a;",       "a() { }",   "a.b();",     "<T> a() { }",
                           "= 1;",   "}",    "class",      "@A",       "import a;", "package a;", "module a { }",
                           "public", "1 2;", "1a b;",      "a = b c;", "a \"b\";",  "1.e b;",     "\"a\" b"})
    EXPECT_FALSE(outline(text).isCompact) << text;
}

TEST(OutlineReader, ACtrlZBetweenLexemesEndsTheFile) {
  EXPECT_EQ(types("class A { } \x1A class B { }"), "class A");
  EXPECT_EQ(types("class A { }\x1A"), "class A");
  EXPECT_EQ(types("class A { void f() { \x1A } class B { } }"), "class A");
  EXPECT_EQ(types("class A { int a = 1\x1A; class B { } }"), "class A");
  EXPECT_EQ(types("class A { } \\u001a class B { }"), "class A");
  EXPECT_EQ(types("@X(\x1A) class A { }"), "");
}

TEST(OutlineReader, ACtrlZWithinALexemeEndsNothing) {
  EXPECT_EQ(types("class A { /* \x1A */ String s = \"\x1A\"; char c = '\x1A'; // \x1A\n class B { } }"),
            "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { g\x1A\x1Ah(); } class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("cl\x1A"
                  "ass A\x1A { } class B { }"),
            "class A, class B");
  EXPECT_EQ(types("class A { String s = \"\"\" \n \x1A \"\"\"; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { void f() { g\x01\x1Ah(); } class B { } }"), "class A, class A$B");
}

TEST(OutlineReader, IgnoresControlCharactersInNames) {
  EXPECT_EQ(types("cl\0ass A\x7F\x01"
                  "B { }"s),
            "class AB");
  EXPECT_EQ(types("class A { void f\x02() { } } class B { }"), "class A, class B");
}

TEST(OutlineReader, TakesBytesBeyondAsciiForLetters) {
  EXPECT_EQ(types("class \xC3\x84rger { enum \xE4 { } }"), "class \xC3\x84rger, enum \xC3\x84rger$\xE4");
  EXPECT_EQ(types("class A { String s = \"\xC3\xA4}\"; char c = '\xE2\x82\xAC'; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("\xEF\xBB\xBF"
                  "class A { }"),
            "class A");
  EXPECT_EQ(types("class $ { class _a1 { } }"), "class $, class $$_a1");
}

TEST(OutlineReader, ComesToAnEndInABrokenSource) {
  EXPECT_EQ(types("class A { class B { void f() {"), "class A, class A$B");
  EXPECT_EQ(textOf("class A { class B { void f() {", "A$B"), "class B { void f() {");
  EXPECT_EQ(types("} class A { } } class B { }"), "class A, class B");
  EXPECT_EQ(types("class; class A; class B { } class C }; class D { }"), "class B, class D");
  EXPECT_EQ(types("class A { void f( } class B { }"), "class A, class B");
  EXPECT_EQ(types("class A { int a = } class B { }"), "class A, class B");
  EXPECT_EQ(types("class A { void f() } class B { }"), "class A, class B");
  EXPECT_EQ(types("class A { int f } class B { }"), "class A, class B");
  EXPECT_EQ(types("class A { List<int } class B { }"), "class A, class B");
  EXPECT_EQ(types("enum A { B( } class C { }"), "enum A, class C");
  EXPECT_EQ(types("class { } class A { }"), "class A");
  EXPECT_EQ(types("class A { 'x class B { }\n; class C { } }"), "class A, class A$C");
  EXPECT_EQ(types("@"), "");
  EXPECT_EQ(types("@A("), "");
  EXPECT_EQ(types("import"), "");
  EXPECT_EQ(types("package a class A { }"), "class A");
  EXPECT_EQ(types("import a.* class A { }"), "class A");
  EXPECT_EQ(types("class A<B { } class C { }"), "class A, class C");
  EXPECT_EQ(types("class A { List<int; class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class A { void main(String[] a } class B { }"), "class A, class B");
  EXPECT_EQ(types("class A { void main(a = 1) { } class B { } }"), "class A, class A$B");
  EXPECT_EQ(types("class { enum B { } } class A { }"), "class A");
  EXPECT_EQ(types("class A { class B } class C { }"), "class A, class C");
}

TEST(OutlineReader, TellsWhetherTheTextEndsWithinAType) {
  EXPECT_TRUE(outline("class A { ").isCutOff);
  EXPECT_TRUE(outline("class A { void f() { ").isCutOff);
  EXPECT_TRUE(outline("enum A { B, ").isCutOff);
  EXPECT_TRUE(outline("class A { /* }").isCutOff);
  EXPECT_TRUE(outline("class A { \x1A }").isCutOff);
  EXPECT_FALSE(outline("class A { } /*").isCutOff);
  EXPECT_FALSE(outline("").isCutOff);
  EXPECT_EQ(first("class A { ").end, 10U);
}

}  // namespace
}  // namespace tarnwick::test
