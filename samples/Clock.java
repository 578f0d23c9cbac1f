import java.time.LocalTime;
import java.time.temporal.ChronoUnit;

/** Writes the time once a second until it is stopped: close its console. */
public class Clock {
    public static void main(String[] arguments) throws InterruptedException {
        System.out.println("The clock runs until its window is closed.");
        while (true) {
            System.out.println(LocalTime.now().truncatedTo(ChronoUnit.SECONDS));
            Thread.sleep(1000);
        }
    }
}
