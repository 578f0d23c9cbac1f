abstract class Members extends Thread implements Runnable, java.io.Serializable {
    ;; int a, b[] = { 1, 2 }, c = f(new int[] { 3 }), d[][] = {{ 4 }, { }}; ; { class No { } } static { enum No { } }
    int g(int... x)[] { return null; } abstract <T> T h() throws Error, java.io.IOException; native void i(); int j = a < 1 ? b[0] : c;
    Runnable k = () -> { class No { } }, l = new Runnable() { class No { } public void run() { } class No2 { } }, m = Members::n;
    static void n() { switch (1) { case 1: class No { } default: } for (;;) { } } class Inner { Inner() { } class Deep { { } } }
    java.util.function.Function<Object, Object> o = x -> switch (x) { case String s -> { yield "}"; } default -> null; };
    Class<?> p = int[].class, q = Members.class, r = Members[].class; public static final class Stat { static class Stat2 { } }
    int f(int[] a) { label: while (true) { break label; } if (a == null) { return 1; } else { return a.length; } }
    synchronized final strictfp transient volatile int nonsense; protected Members() { super(); } interface In { int X = 1; class C { } }
    default void wrong() { } Object s = new Members() { @Override <T> T h() { return null; } void x() { class No { } } }; class Z { }
}
