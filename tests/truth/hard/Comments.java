/**/ /***/ /*/ class No { /*/ // class No {
/* " ' class No { */ class/**/Comments/* { */{/* } */ // }
    int a = 4 /2/ 2; // it's "
    /* it's " \ */ class Inner { } /** { **/
    String s = "/*", t = "*/", u = "//"; char c = '/', d = '*';
    void f() { int x = 1 / 2; /* } */ x /= 3; // }
    }
    class /* a */ Other /* b */ extends /* c */ Comments /* d */ . /* e */ Inner /* f */ { }
}
/* the end is here **/ class Last { } //