class ControlZ {
  /*  */ String s = "", t = """
  """; char c = ''; // 
  int ab, d;
  void f() { ab = gh(); }
  int gh() { return 1; } class Inner { }
}
 class No { "
