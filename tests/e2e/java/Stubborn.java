import java.nio.file.Files;
import java.nio.file.Path;

/** Has a shutdown hook that takes its time, and starts a process that goes into a session of its own and is nobody's child. */
public class Stubborn {
    public static void main(String[] arguments) throws Exception {
        Runtime.getRuntime().addShutdownHook(new Thread(() -> {
            try {
                Thread.sleep(500);
                Files.writeString(Path.of("hook-was-here"), "yes");
            } catch (Exception problem) {
                problem.printStackTrace();
            }
        }));
        new ProcessBuilder("sh", "-c", "setsid sleep 1000 &").start().waitFor();
        System.out.println("started");
        Thread.sleep(1000000);
    }
}
