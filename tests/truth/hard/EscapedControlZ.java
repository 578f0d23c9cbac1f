class EscapedControlZ { }
\u001a class No { }