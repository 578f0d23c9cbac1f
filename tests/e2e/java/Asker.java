import java.util.Scanner;

/** Asks for a name, greets, and asks again until the input ends. */
public class Asker {
    public static void main(String[] arguments) {
        Scanner input = new Scanner(System.in);
        System.out.println("What is your name?");
        while (input.hasNextLine()) greet(input.nextLine());
        System.err.println("Nobody else.");
    }

    static void greet(String name) {
        System.out.println("Hello, " + name + "!");
    }
}
