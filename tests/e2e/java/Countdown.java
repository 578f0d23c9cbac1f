/** Something to debug: a loop, a method with a local variable, an object, a question at the end. */
public class Countdown {
    private final String unit = "seconds";

    public static void main(String[] args) throws Exception {
        Countdown countdown = new Countdown();
        for (int left = 3; left > 0; left--) {
            countdown.tell(left);
        }
        System.out.println("Lift off, " + args.length + " arguments");
    }

    void tell(int left) {
        String line = left + " " + unit;
        System.out.println(line);
    }
}
