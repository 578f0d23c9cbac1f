/* A comment that an escape ends: *\u002f
cl\u0061ss \u0045scapes \u007b
    // a line that an escape ends \u000a int first = 1; class Inner \uuuu007b } /* \u002a/
    String quotes = "\\u0022; }" + "\u005c"}" + '\u005c'' + "\u0022; String more = "{";
    char brace = '\u007d', quote = '\u0022', apostrophe = '\u005c\u0027', backslash = '\u005c\u005c';
    String pair = "\\\u007d\\" + "\\\\u007d" + "\u005c\\u007d";
    enum Caf\u00e9 { \u0041, B }
    static class \ud835\udc9c { }
\u007d
interface \u0041fter\u002f\u002a } */\u007b \u007d
