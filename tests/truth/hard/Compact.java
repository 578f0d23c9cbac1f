import module java.base;
import java.util.*;
// A class that is the file itself.
public class First { void main() { } static class In { void main() { } } }
String greeting = "}", other[] = { "{" };
<T> List<T> of(T t) { class No { } return List.of(t); }
record Point(int x) { static void main() { } } enum Kind { A, B } @interface Note { } static class Fixed { void main() { } }
void main() { IO.println(greeting); } // {
; @Deprecated private static final int LAST = 1;
