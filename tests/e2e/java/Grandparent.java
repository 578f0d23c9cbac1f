/** Leaves a process behind that holds both of its streams, and ends. */
public class Grandparent {
    public static void main(String[] arguments) throws Exception {
        new ProcessBuilder("sleep", "1000").inheritIO().start();
        System.out.println("left behind");
    }
}
