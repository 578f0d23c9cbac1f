/** Waits for a Return, writes a flood of numbered lines, and waits again. */
public class Flood {
    public static void main(String[] arguments) throws Exception {
        System.out.println("ready");
        System.in.read();
        StringBuilder lines = new StringBuilder();
        for (int number = 0; number < 300000; number++) {
            lines.append("line ").append(number).append(" of a flood of three hundred thousand\n");
        }
        System.out.print(lines);
        System.out.println("last");
        System.in.read();
    }
}
