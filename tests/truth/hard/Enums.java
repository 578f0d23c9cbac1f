enum Enums implements Runnable, Comparable2<Enums> {
    @Deprecated A, B(1), C { class No { } void f() { } }, D(new Object() { class No { } int x() { return 1; } }) { enum No { } },
    @SuppressWarnings({";", "}"}) E("},;{", '}', (Runnable) () -> { class No { } }, (Runnable) () -> { return; }),;
    class Inner { } Enums(Object... a) { } public void run() { }
    enum Empty { } enum Comma { , } enum Semicolon { ; class In { } } enum CommaSemicolon { ,; interface In { } } enum One { record }
    enum Two { sealed, record, permits, module, open, var, yield, non } enum Last { A { } ; ; class In { } ; }
    public static void main(String... args) { }
}
interface Comparable2<T> { }
enum Constants { public_, $, _1 { { } static { } } }
