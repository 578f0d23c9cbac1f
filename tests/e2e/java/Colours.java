/** Fills lines of both streams, so that their colours can be counted on the screen. */
public class Colours {
    public static void main(String[] arguments) throws Exception {
        for (int i = 0; i < 3; i++) {
            System.out.println("OOOOOOOOOOOOOOOOOOOOOOOOOOOOOOOO");
        }
        System.out.flush();
        Thread.sleep(500);
        for (int i = 0; i < 3; i++) {
            System.err.println("EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE");
        }
        Thread.sleep(500);
        System.out.print("part of a line");
        System.out.flush();
        System.in.read();
    }
}
