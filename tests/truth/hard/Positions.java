/** doc */ @Deprecated /* a */ public // b
  class Positions { /** c */ static /* d */ class A { } /** e */ @Deprecated() class B { }
  /* f */ @  interface C { } /* g */ record D() { } non-sealed class E extends S { } sealed class S { } }
@Deprecated final/* h */class F{}enum G{}/**/interface H{}