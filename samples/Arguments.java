/** Shows what was typed behind the class in the panel, one argument a line. */
public class Arguments {
    public static void main(String[] arguments) {
        System.out.println("Arguments: " + arguments.length);
        for (int i = 0; i < arguments.length; i++) {
            System.out.println((i + 1) + ": " + arguments[i]);
        }
    }
}
