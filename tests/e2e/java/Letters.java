import java.io.PrintStream;

/** Letters of several widths, a character in two pieces, bytes that are no character. */
public class Letters {
    public static void main(String[] arguments) throws Exception {
        PrintStream out = System.out;
        String[] lines = {"abcd|", "日本|", "e\u0301e\u0301cd|", "äöüß|"};
        for (String line : lines) {
            out.write((line + "\n").getBytes("UTF-8"));
        }
        out.write(new byte[] {'<', (byte) 0xE6, (byte) 0x97});
        out.flush();
        Thread.sleep(300);
        out.write(new byte[] {(byte) 0xA5, '>', '\n'});
        out.write(new byte[] {'(', (byte) 0xFF, (byte) 0xC3, ')', '\n'});
        out.write("ready\n".getBytes("UTF-8"));
        out.flush();
        System.in.read();
    }
}
