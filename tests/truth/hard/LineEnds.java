// class No {class LineEnds {// }
  int a; // {
  class Inner {
  } /*  */ String s = """
 }  { 
""";}class Last { } // {