/** Does not compile: the sum is put into a text. The compiler's message opens in the editor. */
public class Broken {
    public static void main(String[] arguments) {
        int apples = 3;
        int pears = 4;
        String fruit = apples + pears;
        System.out.println(fruit);
    }
}
