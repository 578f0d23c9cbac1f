class NewerMains { void main() { }
    static class A { void main(String[] a) { } } static class B { static void main() { } } static class C { protected static void main(String... a) { } }
    static class D { private void main() { } } class E { void main() { } } class F { static void main() { } } static abstract class G { void main() { } }
    static class H { H(int x) { } void main() { } } static class I { I(int x) { } I() { } void main() { } } static class J { private J() { } void main() { } }
    private static class K { void main() { } } private static class L { L() { } void main() { } } static class M { <T> M() { } void main() { } }
    static class N { void main() { } static void main(String[] a) { } private N() { } } static class O { static void main() { } void main(String[] a) { } O(int x) { } }
    static class P { void main(P this) { } } static class Q { void main(@Deprecated Q this, String[] a) { } } static class R { R(int... x) { } void main() { } }
    interface S { class T { void main() { } } } static class U { void U(int x) { } void main() { } } static abstract class V { static void main() { } }
    enum W { ; void main() { } W() { } } static class X { int main() { return 1; } } @interface Y { class Z { void main() { } } }
}
