import com.sun.source.tree.AnnotatedTypeTree;
import com.sun.source.tree.ArrayTypeTree;
import com.sun.source.tree.ClassTree;
import com.sun.source.tree.CompilationUnitTree;
import com.sun.source.tree.IdentifierTree;
import com.sun.source.tree.ImportTree;
import com.sun.source.tree.MemberSelectTree;
import com.sun.source.tree.MethodTree;
import com.sun.source.tree.ModifiersTree;
import com.sun.source.tree.ModuleTree;
import com.sun.source.tree.ParameterizedTypeTree;
import com.sun.source.tree.PrimitiveTypeTree;
import com.sun.source.tree.Tree;
import com.sun.source.tree.VariableTree;
import com.sun.source.util.JavacTask;
import com.sun.source.util.SourcePositions;
import com.sun.source.util.Trees;
import java.io.IOException;
import java.net.URI;
import java.nio.ByteBuffer;
import java.nio.charset.CharacterCodingException;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.HashMap;
import java.util.HashSet;
import java.util.List;
import java.util.Map;
import java.util.Set;
import javax.lang.model.element.Modifier;
import javax.lang.model.type.TypeKind;
import javax.tools.Diagnostic;
import javax.tools.JavaFileObject;
import javax.tools.SimpleJavaFileObject;
import javax.tools.ToolProvider;

/**
 * The outlines of Java sources as the compiler itself sees them: java OutlineTruth.java LIST, with the name of a source
 * in each line of the list. Behind the name of a file in which its parser finds errors stands "errors".
 */
public class OutlineTruth {
    private static final int FILES_AT_ONCE = 200;

    /** A source in memory, which knows where its characters stand as bytes. */
    private static class Source extends SimpleJavaFileObject {
        final String path;
        final String text;
        final Charset charset;
        private final int[] offsets;

        Source(String path) throws IOException {
            super(Path.of(path).toAbsolutePath().toUri(), JavaFileObject.Kind.SOURCE);
            this.path = path;
            byte[] bytes = Files.readAllBytes(Path.of(path));
            charset = isUtf8(bytes) ? StandardCharsets.UTF_8 : StandardCharsets.ISO_8859_1;
            text = new String(bytes, charset);
            offsets = text.length() == bytes.length ? null : offsetsOf(text);
        }

        private static boolean isUtf8(byte[] bytes) {
            try {
                StandardCharsets.UTF_8.newDecoder().decode(ByteBuffer.wrap(bytes));
                return true;
            } catch (CharacterCodingException other) {
                return false;
            }
        }

        private static int[] offsetsOf(String text) {
            int[] offsets = new int[text.length() + 1];
            for (int i = 0; i < text.length(); ++i) {
                char c = text.charAt(i);
                // Each half of a character beyond the first plane counts for two of its four bytes.
                int bytes = c < 0x80 ? 1 : c < 0x800 || Character.isSurrogate(c) ? 2 : 3;
                offsets[i + 1] = offsets[i] + bytes;
            }
            return offsets;
        }

        long offset(long position) {
            return offsets == null || position < 0 ? position : offsets[(int) position];
        }

        long size() {
            return offset(text.length());
        }

        @Override
        public CharSequence getCharContent(boolean ignoreEncodingErrors) {
            return text;
        }

        @Override
        public String getName() {
            return path;
        }
    }

    private final StringBuilder out = new StringBuilder();
    private SourcePositions positions;
    private CompilationUnitTree unit;
    private Source source;

    public static void main(String[] args) throws IOException {
        List<String> paths = Files.readAllLines(Path.of(args[0]));
        OutlineTruth truth = new OutlineTruth();
        for (int i = 0; i < paths.size(); i += FILES_AT_ONCE) {
            truth.show(paths.subList(i, Math.min(paths.size(), i + FILES_AT_ONCE)));
        }
        System.out.flush();
    }

    private void show(List<String> paths) throws IOException {
        List<Source> sources = new ArrayList<>();
        for (String path : paths) {
            sources.add(new Source(path));
        }
        Set<URI> faulty = new HashSet<>();
        JavacTask task = (JavacTask) ToolProvider.getSystemJavaCompiler().getTask(null, null, diagnostic -> {
            if (diagnostic.getKind() == Diagnostic.Kind.ERROR && diagnostic.getSource() != null) {
                faulty.add(diagnostic.getSource().toUri());
            }
        }, List.of("-proc:none"), null, sources);
        positions = Trees.instance(task).getSourcePositions();
        Map<URI, CompilationUnitTree> units = new HashMap<>();
        for (CompilationUnitTree each : task.parse()) {
            units.put(each.getSourceFile().toUri(), each);
        }
        for (Source each : sources) {
            source = each;
            unit = units.get(each.toUri());
            print("file " + each.path + (unit == null || faulty.contains(each.toUri()) ? " errors" : ""));
            if (unit != null) {
                showUnit();
            }
            // Names go out as the bytes that they came in.
            System.out.write(out.toString().getBytes(each.charset));
            out.setLength(0);
        }
    }

    private void print(String line) {
        out.append(line).append('\n');
    }

    private void showUnit() {
        if (unit.getPackage() != null) {
            boolean annotated = !unit.getPackage().getAnnotations().isEmpty();
            print("package " + unit.getPackage().getPackageName() + (annotated ? " annotated" : ""));
        }
        for (ImportTree each : unit.getImports()) {
            print("import " + (each.isStatic() ? "static " : "") + (isModule(each) ? "module " : "")
                    + each.getQualifiedIdentifier());
        }
        if (unit.getModule() != null) {
            boolean open = unit.getModule().getModuleType() == ModuleTree.ModuleKind.OPEN;
            print("module " + unit.getModule().getName() + (open ? " open" : ""));
        }
        for (Tree each : unit.getTypeDecls()) {
            if (each instanceof ClassTree) {
                showType((ClassTree) each, null, "");
            }
        }
    }

    /** Imports of modules came with version 25. */
    private static boolean isModule(ImportTree tree) {
        try {
            return (Boolean) ImportTree.class.getMethod("isModule").invoke(tree);
        } catch (ReflectiveOperationException older) {
            return false;
        }
    }

    private void showType(ClassTree type, ClassTree outer, String prefix) {
        String name = prefix + type.getSimpleName();
        boolean implicit = outer == null && isImplicit(type);
        Set<Modifier> flags = type.getModifiers().getFlags();
        if (implicit) {
            print("compact");
        }
        StringBuilder line = new StringBuilder("type " + type.getKind().toString().toLowerCase() + " " + name);
        line.append(flags.contains(Modifier.PUBLIC) ? " public" : "");
        line.append(flags.stream().anyMatch(flag -> flag.toString().equals("sealed")) ? " sealed" : "");
        line.append(type.getPermitsClause().isEmpty() ? "" : " permits");
        line.append(' ').append(implicit ? 0 : source.offset(positions.getStartPosition(unit, type)));
        line.append(' ').append(implicit ? source.size() : source.offset(positions.getEndPosition(unit, type)));
        boolean isInterface = isInterface(type);
        if (type.getExtendsClause() != null) {
            line.append(" extends ").append(nameOf(type.getExtendsClause()));
        }
        if (!type.getImplementsClause().isEmpty()) {
            line.append(isInterface ? " extends" : " implements");
            for (Tree each : type.getImplementsClause()) {
                line.append(' ').append(nameOf(each));
            }
        }
        String main = mainOf(type, outer, implicit);
        print(line + (main.isEmpty() ? "" : " main " + main));
        for (Tree each : type.getMembers()) {
            if (each instanceof ClassTree) {
                showType((ClassTree) each, type, name + "$");
            }
        }
    }

    /** The class that a compact source is has modifiers that stand nowhere. */
    private boolean isImplicit(ClassTree type) {
        ModifiersTree modifiers = type.getModifiers();
        return modifiers.getFlags().contains(Modifier.FINAL) && positions.getStartPosition(unit, modifiers) < 0;
    }

    private static boolean isInterface(ClassTree type) {
        return type.getKind() == Tree.Kind.INTERFACE || type.getKind() == Tree.Kind.ANNOTATION_TYPE;
    }

    /** A type's name without type arguments and annotations. */
    private static String nameOf(Tree type) {
        if (type instanceof ParameterizedTypeTree) {
            return nameOf(((ParameterizedTypeTree) type).getType());
        }
        if (type instanceof AnnotatedTypeTree) {
            return nameOf(((AnnotatedTypeTree) type).getUnderlyingType());
        }
        if (type instanceof MemberSelectTree) {
            MemberSelectTree select = (MemberSelectTree) type;
            return nameOf(select.getExpression()) + "." + select.getIdentifier();
        }
        if (type instanceof IdentifierTree) {
            return ((IdentifierTree) type).getName().toString();
        }
        return type.toString();
    }

    private String mainOf(ClassTree type, ClassTree outer, boolean implicit) {
        MethodTree ofStrings = null;
        MethodTree ofNothing = null;
        for (Tree each : type.getMembers()) {
            if (!(each instanceof MethodTree) || !isMain((MethodTree) each)) {
                continue;
            }
            MethodTree method = (MethodTree) each;
            Set<Modifier> flags = method.getModifiers().getFlags();
            if (flags.contains(Modifier.PRIVATE)) {
                continue;
            }
            boolean isPublic = flags.contains(Modifier.PUBLIC) || (isInterface(type) && !flags.contains(Modifier.PROTECTED));
            if (method.getParameters().isEmpty()) {
                ofNothing = method;
            } else if (isStrings(method)) {
                ofStrings = method;
                if (isPublic && flags.contains(Modifier.STATIC)) {
                    return "classic";
                }
            }
        }
        MethodTree chosen = ofStrings != null ? ofStrings : ofNothing;
        if (chosen == null) {
            return "";
        }
        boolean isStatic = chosen.getModifiers().getFlags().contains(Modifier.STATIC);
        return isStatic || implicit || canBeMade(type, outer) ? "newer" : "";
    }

    private static boolean isMain(MethodTree method) {
        return method.getName().contentEquals("main") && method.getReturnType() instanceof PrimitiveTypeTree
                && ((PrimitiveTypeTree) method.getReturnType()).getPrimitiveTypeKind() == TypeKind.VOID;
    }

    private static boolean isStrings(MethodTree method) {
        if (method.getParameters().size() != 1) {
            return false;
        }
        Tree type = withoutAnnotations(method.getParameters().get(0).getType());
        if (!(type instanceof ArrayTypeTree)) {
            return false;
        }
        Tree element = withoutAnnotations(((ArrayTypeTree) type).getType());
        String name = element instanceof ArrayTypeTree ? "" : nameOf(element);
        return name.equals("String") || name.equals("java.lang.String");
    }

    private static Tree withoutAnnotations(Tree type) {
        return type instanceof AnnotatedTypeTree ? ((AnnotatedTypeTree) type).getUnderlyingType() : type;
    }

    private boolean canBeMade(ClassTree type, ClassTree outer) {
        Set<Modifier> flags = type.getModifiers().getFlags();
        boolean isRecord = type.getKind().toString().equals("RECORD");
        boolean isClass = type.getKind() == Tree.Kind.CLASS;
        if (!isClass && !isRecord) {
            return false;
        }
        boolean isInner = isClass && outer != null && !flags.contains(Modifier.STATIC) && !isInterface(outer);
        if (flags.contains(Modifier.ABSTRACT) || isInner) {
            return false;
        }
        boolean hasConstructor = false;
        boolean hasComponents = false;
        for (Tree each : type.getMembers()) {
            if (each instanceof VariableTree) {
                hasComponents |= isRecord
                        && !((VariableTree) each).getModifiers().getFlags().contains(Modifier.STATIC);
            }
        }
        for (Tree each : type.getMembers()) {
            if (!(each instanceof MethodTree) || !((MethodTree) each).getName().contentEquals("<init>")) {
                continue;
            }
            MethodTree constructor = (MethodTree) each;
            hasConstructor |= !isRecord;
            boolean hasParameters = !constructor.getParameters().isEmpty() || (hasComponents && isCompact(constructor));
            if (!hasParameters) {
                return !constructor.getModifiers().getFlags().contains(Modifier.PRIVATE);
            }
        }
        return !hasConstructor && !hasComponents && !flags.contains(Modifier.PRIVATE);
    }

    /** A record's constructor without a list of parameters. */
    private boolean isCompact(MethodTree constructor) {
        long from = positions.getEndPosition(unit, constructor.getModifiers());
        if (from < 0) {
            from = positions.getStartPosition(unit, constructor);
        }
        long to = positions.getStartPosition(unit, constructor.getBody());
        return source.text.substring((int) from, (int) to).indexOf('(') < 0;
    }
}
