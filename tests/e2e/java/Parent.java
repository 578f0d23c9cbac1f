import java.util.concurrent.TimeUnit;

/** Starts a process of its own that would outlive it, and waits. */
public class Parent {
    public static void main(String[] arguments) throws Exception {
        Process child = new ProcessBuilder("sleep", "1000").inheritIO().start();
        System.out.println("child " + child.pid());
        child.waitFor(1000, TimeUnit.SECONDS);
    }
}
