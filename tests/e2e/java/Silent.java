/** Says nothing at all. */
public class Silent {
    public static void main(String[] arguments) {
    }
}
