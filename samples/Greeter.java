import java.io.BufferedReader;
import java.io.IOException;
import java.io.InputStreamReader;

/**
 * Talks with whoever sits at the console: asks for a name, then answers each line until an empty one or "bye".
 * Its remarks about the conversation go to standard error, which the console shows in red.
 */
public class Greeter {
    private final BufferedReader in = new BufferedReader(new InputStreamReader(System.in));
    private int answered;

    public static void main(String[] arguments) throws IOException {
        new Greeter().talk();
    }

    private void talk() throws IOException {
        String name = ask("What is your name? ");
        if (name.isEmpty()) {
            System.err.println("No name was given.");
            name = "stranger";
        }
        System.out.println("Hello, " + name + "!");
        System.out.println("Tell me something. An empty line or \"bye\" ends our talk.");
        for (String line = ask("> "); !line.isEmpty() && !line.equals("bye"); line = ask("> ")) {
            answer(line);
        }
        System.out.println("Good bye, " + name + ".");
        System.err.println("Lines answered: " + answered);
    }

    /** The question stays on the line where the answer is typed. */
    private String ask(String question) throws IOException {
        System.out.print(question);
        System.out.flush();
        String line = in.readLine();
        return line == null ? "" : line.trim();
    }

    private void answer(String line) {
        answered++;
        System.out.println("You said \"" + line + "\", backwards \"" + new StringBuilder(line).reverse() + "\".");
        if (line.endsWith("?")) {
            System.err.println("That was a question. I only repeat.");
        }
    }
}
