import java.util.Scanner;

/** A million characters without a line's end, and a question behind them. */
public class LongLine {
    public static void main(String[] arguments) {
        StringBuilder line = new StringBuilder();
        while (line.length() < 1000000) {
            line.append("0123456789");
        }
        System.out.print(line + "MMMM");
        System.out.flush();
        Scanner in = new Scanner(System.in);
        while (in.hasNextLine()) {
            System.out.println("got: " + in.nextLine());
        }
    }
}
