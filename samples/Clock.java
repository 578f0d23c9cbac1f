import java.time.LocalTime;
import java.time.format.DateTimeFormatter;

/** Writes the time once a second until it is stopped: close its console. */
public class Clock {
    public static void main(String[] arguments) throws InterruptedException {
        DateTimeFormatter seconds = DateTimeFormatter.ofPattern("HH:mm:ss");
        System.out.println("The clock runs until its window is closed.");
        while (true) {
            System.out.println(LocalTime.now().format(seconds));
            Thread.sleep(1000);
        }
    }
}
