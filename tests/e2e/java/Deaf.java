import sun.misc.Signal;
import sun.misc.SignalHandler;

/** Does not hear that it should end, and has a child of the same kind. */
public class Deaf {
    public static void main(String[] arguments) throws Exception {
        Signal.handle(new Signal("TERM"), SignalHandler.SIG_IGN);
        new ProcessBuilder("sh", "-c", "trap '' TERM; sleep 1000").inheritIO().start();
        System.out.println("deaf");
        Thread.sleep(1000000);
    }
}
