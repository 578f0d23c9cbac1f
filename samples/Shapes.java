/*
 * Several public types in one source, which javac alone refuses. Press "javac": after a warning each of them is compiled
 * as a file of its own name, and this file stays as it is. Then run Gallery.class.
 */
import java.util.Locale;

/** What all shapes have. */
public interface Shape {
    double area();
}

/** Round. */
public class Circle implements Shape {
    private final double radius;

    public Circle(double radius) {
        this.radius = radius;
    }

    public double area() {
        return Math.PI * radius * radius;
    }
}

/** With four right angles. */
public class Rectangle implements Shape {
    private final double width;
    private final double height;

    public Rectangle(double width, double height) {
        this.width = width;
        this.height = height;
    }

    public double area() {
        return width * height;
    }
}

/** Shows some shapes. */
public class Gallery {
    public static void main(String[] arguments) {
        show(new Circle(1));
        show(new Rectangle(2, 3));
    }

    private static void show(Shape shape) {
        System.out.printf(Locale.ROOT, "%s: area %.2f%n", shape.getClass().getName(), shape.area());
    }
}
