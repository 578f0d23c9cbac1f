class Beyond { class 数 { String s = "}数"; char c = '数'; } enum Ωμέγα { α, β { } }
  /* 😀 */ interface 𝒜<τ> { } class $ { class _a$b { } } record é(int ö) { } }
