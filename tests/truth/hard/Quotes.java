class Quotes {
    char a = '}', b = '{', c = '\'', d = '"', e = '\\', f = '\177', g = '\u007d', h = '/';
    String i = "}", j = "\"}", k = "\\", l = "'", m = "", n = "{" + "" + "}", o = "\\\"}", p = "//", q = "/* ";
    @Deprecated(since = ")}") class Inner { String s = "class No {"; }
    void f(@Named("){") String x) { g('"', "'", '\'', "\"'\"", "\\", '\\'); } class Other { } // "
    void g(Object... a) { } @interface Named { String value() default "{;}"; char c() default ';'; }
}
