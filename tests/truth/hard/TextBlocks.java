class TextBlocks {
    String a = """
        class No { " "" \""" \\ } /* // '
        """, b = """
        }""", c = """   
        \
        {\"""", d = "" + """
        ""\"""" + "", e = """
        // """ /* """ */;
    String f = """
        """.formatted("{", """
        {""");
    class Inner { String s() { return """
        }
        """; } } // """
    class Other { }
}
