import java.util.*;
class Generics<T extends Comparable<? super T> & java.io.Serializable, U extends Map<T, List<T[]>>> extends AbstractList<T>
        implements Comparable<Generics<T, U>>, java.util.RandomAccess {
    <A, B extends List<A>> Generics(A a) throws Exception { }
    <A> Map<A, List<? extends Map<A, A>>> f(Map<A, A>... a) { boolean b = 1 < 2, c = 3 > 2; return null; }
    boolean less = size() < 1, more = 2 > size(); int shift = 1 >> 2 >>> 3 << 4;
    class Inner<V> extends Outer<T>.Inner<V> { }
    Map<String, Map<String, List<String>>> field = new HashMap<String, Map<String, List<String>>>() { class No { } };
    static class Outer<W> { class Inner<V> { } }
    class Deep<T, V> extends Generics.Outer<List<T>>.Inner<Map<V, List<V>>> implements Comparable<T> { class Deeper<X> { } }
    interface Many<A, B> extends Comparable<Map<A, B>>, java.util.function.Function<A, B> { }
    public T get(int i) { return null; } public int size() { return 0; } public int compareTo(Generics<T, U> o) { return 0; }
}
