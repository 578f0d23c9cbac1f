class ControlZInside { }
enum Other { A }}}}} class No {