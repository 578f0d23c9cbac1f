import java.lang.annotation.*;
@Annotations.All({ @Annotations.One(1), @Annotations.One(value = (2), text = ")}{(") }) @Deprecated
public @SuppressWarnings({"unchecked", "}"}) class Annotations {
    @ interface One { int value() default 1; String text() default "{" + "}"; Class<?>[] types() default { int.class, String[].class }; }
    @ /* a */ interface All { One[] value() default { @One(1), @One(2) }; int[] more() default {}; class Inner { } enum E { A } }
    @Target({ElementType.TYPE_USE, ElementType.TYPE_PARAMETER}) @interface Use { int value() default 0; int other()[] default {1}; }
    @Use String @Use(1) [] @Use [] f(@Use(value = 2) java.lang.@Use String @Use ... a) throws @Use Exception { return null; }
    class Typed<@Use(1 > 2 ? 3 : 4) T extends @Use Object> extends @Use(5) Object implements @Use java.io.@Use(6) Serializable { }
    @Deprecated @Annotations . /* b */ One /* c */ ( 3 ) static final class Spaced { }
    java.util.List<@Use(value = 7) ? extends @Use String> list; int g(@One('(') int x) { return 0; }
}
