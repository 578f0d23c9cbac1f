import java.lang.Deprecated; /** { */ @Deprecated(since = "}") open /* a */ module hard . sources { requires transitive java.base;
  exports a.b to c.d, e; provides f.G with h.I; uses j.K; }
