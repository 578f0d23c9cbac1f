package a . /* b */ b
. c ;
import a.B0;
import a.B1;
import a.B2;
import a.B3;
import a.B4;
import a.B5;
import a.B6;
import a.B7;
import a.B8;
import a.B9;
import a.B10;
import a.B11;
import a.B12;
import a.B13;
import a.B14;
import a.B15;
import a.B16;
import a.B17;
import a.B18;
import a.B19;
import a.B20;
import a.B21;
import a.B22;
import a.B23;
import a.B24;
import a.B25;
import a.B26;
import a.B27;
import a.B28;
import a.B29;
import a.B30;
import a.B31;
import a.B32;
import a.B33;
import a.B34;
import a.B35;
import a.B36;
import a.B37;
import a.B38;
import a.B39;
import a.B40;
import a.B41;
import a.B42;
import a.B43;
import a.B44;
import a.B45;
import a.B46;
import a.B47;
import a.B48;
import a.B49;
class Many { class N0 { class N1 { class N2 { class N3 { class N4 { class N5 { class N6 { class N7 { class N8 { class N9 { class N10 { class N11 { class N12 { class N13 { class N14 { class N15 { class N16 { class N17 { class N18 { class N19 { class N20 { class N21 { class N22 { class N23 { class N24 { class N25 { class N26 { class N27 { class N28 { class N29 { class N30 { class N31 { class N32 { class N33 { class N34 { class N35 { class N36 { class N37 { class N38 { class N39 { class N40 { class N41 { class N42 { class N43 { class N44 { class N45 { class N46 { class N47 { class N48 { class N49 { class N50 { class N51 { class N52 { class N53 { class N54 { class N55 { class N56 { class N57 { class N58 { class N59 { }}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}}} }
public class P0 { String s = ""; }
public class P1 { String s = "}"; }
public class P2 { String s = "}}"; }
public class P3 { String s = "}}}"; }
public class P4 { String s = "}}}}"; }
public class P5 { String s = "}}}}}"; }
public class P6 { String s = "}}}}}}"; }
public class P7 { String s = "}}}}}}}"; }
public class P8 { String s = "}}}}}}}}"; }
public class P9 { String s = "}}}}}}}}}"; }
public class P10 { String s = "}}}}}}}}}}"; }
public class P11 { String s = "}}}}}}}}}}}"; }
public class P12 { String s = "}}}}}}}}}}}}"; }
public class P13 { String s = "}}}}}}}}}}}}}"; }
public class P14 { String s = "}}}}}}}}}}}}}}"; }
public class P15 { String s = "}}}}}}}}}}}}}}}"; }
public class P16 { String s = "}}}}}}}}}}}}}}}}"; }
public class P17 { String s = "}}}}}}}}}}}}}}}}}"; }
public class P18 { String s = "}}}}}}}}}}}}}}}}}}"; }
public class P19 { String s = "}}}}}}}}}}}}}}}}}}}"; }
public class P20 { String s = "}}}}}}}}}}}}}}}}}}}}"; }
public class P21 { String s = "}}}}}}}}}}}}}}}}}}}}}"; }
public class P22 { String s = "}}}}}}}}}}}}}}}}}}}}}}"; }
public class P23 { String s = "}}}}}}}}}}}}}}}}}}}}}}}"; }
public class P24 { String s = "}}}}}}}}}}}}}}}}}}}}}}}}"; }
public class P25 { String s = "}}}}}}}}}}}}}}}}}}}}}}}}}"; }
public class P26 { String s = "}}}}}}}}}}}}}}}}}}}}}}}}}}"; }
public class P27 { String s = "}}}}}}}}}}}}}}}}}}}}}}}}}}}"; }
public class P28 { String s = "}}}}}}}}}}}}}}}}}}}}}}}}}}}}"; }
public class P29 { String s = "}}}}}}}}}}}}}}}}}}}}}}}}}}}}}"; }
