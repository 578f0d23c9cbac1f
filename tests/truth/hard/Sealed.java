public sealed class Sealed permits Sealed.A, Sealed.B, Sealed.C {
    static final class A extends Sealed { } non-sealed static class B extends Sealed { } static sealed class C extends Sealed { }
    static final class D extends C { } int sealed, non, permits; int minus = non-sealed, spaced = non - sealed;
    sealed @Deprecated interface E permits E.F { record F() implements E { } } sealed public interface G { enum H implements G { } }
    @Deprecated sealed @SuppressWarnings("}") abstract static class I { } non-sealed @Deprecated static class J extends I { }
    void f(int permits) { int sealed = 1, non = 2; int x = non-sealed; class K { } final class L extends K { } }
    int sealed() { return sealed; } int permits() { return permits; }
    strictfp sealed abstract class M permits N { } final class N extends M { }
}
non-sealed interface Non extends Base { }
sealed interface Base permits Non, Other { } non-sealed abstract class Other implements Base { }
