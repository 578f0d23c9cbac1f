class Mains { public static void main(String[] a) { }
    static class A { static public void main(final String... a) { } } static class B { public static void main(@Deprecated String a[]) throws Exception { } }
    static class C { public final synchronized static void main(java.lang.String @Use [] a) { } } @interface Use { }
    interface D { static void main(String[] a) { } } interface E { private static void main(String[] a) { } } interface F { default void main() { } }
    enum G { ; public static void main(String[] a) { } } record H(int x) { public static void main(String[] a) { } }
    static class I { public static int main(String[] a) { return 0; } } static class J { public static void main(String a) { } }
    static class K { public static void main(String[][] a) { } } static class L { public static void main(String[]... a) { } }
    static class M { public static void main(String[] a, int b) { } } static class N { public static void main(Object[] a) { } }
    static class O { int main; void f() { main(); } void main(int x) { } } static class P { private static void main(String[] a) { } }
    static class Q { public static void main(String[] a[]) { } } static class R { public static <T> void main(String[] a) { } }
    static class S { Object o = new Object() { public static void main(String[] a) { } }; { class T { public static void main(String[] a) { } } } }
}
