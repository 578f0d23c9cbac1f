class Inner { void main() { } }
java.util.Map<String, int[]> a = null;
