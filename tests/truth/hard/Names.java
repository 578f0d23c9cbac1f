package record.sealed.permits.module.open;
import record.A; import static sealed.permits.*; import module.B; import open.module.C; import static module.D.e;
class Names<module> { int record, sealed, permits, module, open, var, yield, non, when, with, to, opens;
    void record() { } void sealed() { } void permits() { } void module() { } void open() { }
    Names.module module(Names.open open) { var var = 1; return null; }
    class module { } class open extends module { } interface opens { } class non { non sealed; }
    class with implements opens, record.A.B, sealed.C { }
    non non() { return new non(); } open[] opens; module.open c; open d = null, e[] = { }; }
