record Records(int a, @Deprecated String... b) {
    record Empty() { } record Generic<T extends Comparable<T>>(T t, java.util.Map<T, T[]> m) implements Runnable { public void run() { } }
    Records { if (a < 0) { throw new Error("}"); } class No { } }
    record Other(int a) { Other(int a) { this.a = a; } Other() { this(1); } void main() { } }
    record Bare() { void main() { } } record Compact(int a) { Compact { } void main() { } }
    private record Hidden() { void main() { } } private record Shown() { Shown { } void main() { } }
    static int record; int record(int record) { record = 1; int sealed = record; return record(sealed); } static int permits, module, open;
    static int yield, opens, requires, exports, to, with, uses, provides, transitive, when;
    static Records record() { record Local(int x) { } return null; }
    record /* a */ Spaced /* b */ < /* c */ T > ( /* d */ ) { }
    public static final @Deprecated strictfp record Modified() { }
}
