"""Projects of packages, on real JDKs: real libraries, and one of everything that today's Java knows."""

import glob
import os
import re
import shutil
import subprocess

import person
import world
from person import Window, wait_until
from test_projects import FILES, rows_of

LIBRARIES = os.path.join(os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache"), "tarnwick", "libraries")
JARS = ["/usr/share/java/hamcrest.jar", "/usr/share/java/jsr305.jar"]

SHOP = {
    "src/module-info.java": "/** A module. */\nmodule shop {\n  exports shop.goods;\n}\n",
    "src/shop/goods/package-info.java": "/** All that is sold. */\n@Deprecated\npackage shop.goods;\n",
    "src/shop/goods/Parcel.java": '''package shop.goods;

public sealed interface Parcel permits Box, Tube {
    String SIGN = """
        } class Nothing { "this side up" {
        """;
    int volume();
}
''',
    "src/shop/goods/Box.java": "package shop.goods;\n\npublic record Box(int side) implements Parcel {\n"
                               "    public int volume() { return side * side * side; }\n}\n",
    "src/shop/goods/Tube.java": "package shop.goods;\n\npublic final class Tube implements Parcel {\n"
                                "    public int volume() { return 5; }\n}\n",
    "src/shop/goods/Size.java": "package shop.goods;\n\npublic enum Size {\n    SMALL { public int most() { return 10; } },\n"
                                "    LARGE { public int most() { return 1000; } };\n    public abstract int most();\n}\n",
    "src/shop/goods/Pair.java": "package shop.goods;\n\nimport java.util.function.Function;\n\n"
                                "public class Pair<A extends Comparable<? super A>, B> {\n    private final A first;\n"
                                "    private final B second;\n"
                                "    public Pair(A first, B second) { this.first = first; this.second = second; }\n"
                                "    public <C> C with(Function<? super A, ? extends C> use) { return use.apply(first); }\n"
                                "    public B second() { return second; }\n}\n",
    "src/shop/till/Main.java": '''package shop.till;

import shop.goods.*;

public class Main {
    public static void main(String[] words) {
        Parcel[] parcels = {new Box(3), new Tube()};
        int sum = 0;
        for (Parcel parcel : parcels) sum += parcel.volume();
        var pair = new Pair<>(sum, Size.LARGE);
        System.out.println("volume " + pair.with(n -> n * 2) + " of " + pair.second().most() + " " + words.length);
        System.out.print(Parcel.SIGN);
    }
}
''',
}


def tools_of(version):
    """The folder of a JDK's tools; the last one of that version."""
    found = []
    for javac in glob.glob("/usr/lib/jvm/*/bin/javac") + [world.real_javac()]:
        release = os.path.join(os.path.dirname(os.path.dirname(os.path.realpath(javac))), "release")
        if os.path.exists(release):
            with open(release, encoding="utf-8") as lines:
                if re.search(rf'^JAVA_VERSION="{version}\b', lines.read(), re.MULTILINE):
                    found.append(os.path.dirname(os.path.realpath(javac)) + "/")
    if not found:
        raise world.Skipped(f"no JDK {version} on this machine")
    return found[-1]


def classes_in(folder):
    """The bytes of all class files below a folder."""
    found = {}
    for place, _, names in os.walk(folder):
        for name in names:
            if name.endswith(".class"):
                path = os.path.join(place, name)
                with open(path, "rb") as content:
                    found[os.path.relpath(path, folder)] = content.read()
    return found


def times_in(folder):
    return {name: os.stat(os.path.join(folder, name)).st_mtime_ns for name in classes_in(folder)}


def new_project_of_all(panel, path, several_mains=False, picture=None):
    panel.press("Projectview")
    panel.press("New")
    world.answer_file_dialog(path, panel)
    files = Window(FILES)
    files.press("Add all")
    if several_mains:
        files.press("Allow 'public static void main' in multiple classes")
    if picture:
        person.screenshot(picture)
    files.press("OK")
    files.is_gone()


def compile_project(scratch, panel):
    """Presses "javac", and waits until the panel listens again: meanwhile it takes no input."""
    panel.press("javac")
    # The panel answers once the compiler has been started, or there was nothing to do.
    scratch.listens(panel)
    wait_until("the end of the compilation", lambda: not scratch.processes("javac"))
    scratch.listens(panel)


def opened(panel, button, title):
    """Presses until the window comes: a panel that is still busy takes no click."""
    def tried():
        panel.press(button)
        try:
            return Window(title, 5)
        except person.NotSeen:
            return None
    return wait_until(f"the window {title!r}", tried)


def library(package):
    folder = os.path.join(LIBRARIES, package)
    if not os.path.isdir(folder):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "truth", "libraries.sh")
        fetched = subprocess.run([script, "--patched", LIBRARIES, package], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if not os.path.isdir(folder):
            raise world.Skipped(f"the sources of {package} could not be fetched: {fetched.stdout.splitlines()[-1:]}")
    return os.path.join(folder, "src", "main", "java")


def check_library(scratch, package):
    sources = library(package)
    missing = [jar for jar in JARS if not os.path.exists(jar)]
    if missing:
        raise world.Skipped(f"not installed: {missing}")
    scratch.environment["JAVA_HOME"] = os.path.dirname(os.path.dirname(tools_of(17)))
    scratch.configured()
    scratch.change_settings(CLASSPATH=";".join(JARS), JAVA_PATH=tools_of(17))
    folder = os.path.join(scratch.work, package)
    root = os.path.join(folder, "src", "main", "java")
    shutil.copytree(sources, root)
    scratch.start()
    panel = Window("Tarnwick")
    project = os.path.join(folder, package + ".twp")
    new_project_of_all(panel, project, several_mains=True,
                       picture=os.path.join(scratch.project, "build", "e2e", f"packages-{package}.png"))
    rows = rows_of(project)
    assert rows["JAVAC_ONE_RUN"].strip() == "ON", "a first use switches it on"
    names = rows["PROJECT_SOURCES"].split(";")
    on_disk = [os.path.relpath(os.path.join(place, name), folder) for place, _, files in os.walk(folder) for name in files
               if name.endswith(".java")]
    assert sorted(names) == sorted(on_disk)

    # As the program gives them: from the last to the first.
    plain = os.path.join(scratch.root, "plain")
    os.mkdir(plain)
    subprocess.run([tools_of(17) + "javac", "-g", "-d", plain, "-classpath", ":".join(JARS),
                    *(os.path.join(folder, name) for name in reversed(names))],
                   check=True, timeout=person.LIMIT, env=scratch.environment, stderr=subprocess.DEVNULL)
    wanted = classes_in(plain)
    assert wanted
    panel.press("javac")
    wait_until("the classes", lambda: set(classes_in(root)) >= set(wanted) and not scratch.processes("javac"))
    scratch.listens(panel)
    found = classes_in(root)
    assert set(found) == set(wanted), set(found) ^ set(wanted)
    assert [name for name in wanted if found[name] != wanted[name]] == []
    assert set(classes_in(folder)) == {os.path.join("src", "main", "java", name) for name in wanted}
    for _, log in scratch.editor_notes():
        assert "error" not in log, log
    print(f"{package}: {len(names)} sources, {len(found)} classes")

    # One press was enough.
    before = times_in(root)
    compile_project(scratch, panel)
    assert times_in(root) == before


def test_a_library_of_many_packages_compiles_by_one_press_commons_lang3(scratch):
    check_library(scratch, "libcommons-lang3-java")


def test_a_library_of_many_packages_compiles_by_one_press_jsoup(scratch):
    check_library(scratch, "jsoup")


def test_a_library_of_many_packages_compiles_by_one_press_junit4(scratch):
    check_library(scratch, "junit4")


def write_shop(scratch):
    folder = os.path.join(scratch.work, "shop")
    for name, text in SHOP.items():
        scratch.write(os.path.join("shop", name), text)
    return folder


def change(path, old, new):
    """As an editor does a minute later: all files that are there have been there for a minute."""
    folder = path[:path.index("/src/")]
    for place, _, names in os.walk(folder):
        for name in names:
            other = os.path.join(place, name)
            then = os.stat(other).st_mtime_ns - 60 * 10 ** 9
            os.utime(other, ns=(then, then))
    with open(path, encoding="utf-8") as text:
        content = text.read()
    assert old in content
    with open(path, "w", encoding="utf-8") as out:
        out.write(content.replace(old, new))


def run_project(scratch, panel, words=""):
    if words:
        panel.write("shop.till.Main " + words)
    panel.press("java")
    console = Window("shop.till.Main")
    wait_until("its words", lambda: "this side up" in scratch.saved_display(console))
    text = scratch.saved_display(console)
    console.activate()
    console.close()
    console.is_gone()
    panel.activate()
    return text


def check_shop(scratch, version):
    tools = tools_of(version)
    folder = write_shop(scratch)
    scratch.environment["JAVA_HOME"] = os.path.dirname(os.path.dirname(tools))
    scratch.environment["PATH"] = tools + os.pathsep + scratch.environment["PATH"]
    _, panel = scratch.first_start()
    project = os.path.join(folder, "shop.twp")
    new_project_of_all(panel, project)
    rows = rows_of(project)
    assert rows["PROJECT_SOURCES"].split(";") == sorted(SHOP, key=str.lower)
    assert rows["JAVA_PATH"].strip() == tools
    root = os.path.join(folder, "src")
    wanted = {"module-info.class", "shop/till/Main.class"} | {f"shop/goods/{name}.class" for name in (
        "package-info", "Parcel", "Box", "Tube", "Size", "Size$1", "Size$2", "Pair")}
    panel.press("javac")
    wait_until("the classes", lambda: set(classes_in(folder)) == {"src/" + name for name in wanted})
    wait_until("that it can run", lambda: panel.control("jdb debug").enabled)
    assert panel.field().text == "shop.till.Main"
    assert "volume 64 of 1000 2" in run_project(scratch, panel, "one two")

    # A leaf, by itself; then what others are built on, with these.
    for name, old, new, volume, renewed in (
            ("Box", "side * side * side", "side * side", 28, {"Box"}),
            ("Parcel", "int volume();", "int volume();\n    default int more() { return 1; }", 28, {"Box", "Parcel", "Tube"})):
        change(os.path.join(root, "shop", "goods", name + ".java"), old, new)
        before = times_in(root)
        panel.press("javac")
        wait_until("the new class", lambda: times_in(root)[f"shop/goods/{name}.class"] != before[f"shop/goods/{name}.class"])
        wait_until("that it can run", lambda: panel.control("jdb debug").enabled)
        scratch.listens(panel)
        after = times_in(root)
        assert {one for one in after if after[one] != before[one]} == {f"shop/goods/{one}.class" for one in renewed}
        assert f"volume {volume} of 1000 0" in run_project(scratch, panel)
    assert scratch.editor_notes() == []


def test_all_of_todays_java_in_packages_with_jdk_17(scratch):
    check_shop(scratch, 17)


def test_all_of_todays_java_in_packages_with_jdk_25(scratch):
    check_shop(scratch, 25)


def test_of_two_classes_with_one_name_the_selected_one_runs(scratch):
    for root in ("one", "t wo"):
        scratch.write(f"twins/{root}/p/Main.java", "package p;\nclass Main {\n  public static void main(String[] words) {\n"
                      f"    System.out.println(\"this side up in {root}\");\n  }}\n}}\n")
    project = scratch.write("twins/twins.twp", "NEWER_JAVA  ON\nPROJECT_SOURCES  one/p/Main.java;t wo/p/Main.java\n"
                            f"PROJECT_MULTIMAIN  ON\nJAVA_XFUTURE  OFF\nJAVA_PATH  {tools_of(17)}\n")
    scratch.configured()
    scratch.start(project)
    panel = Window("Tarnwick")
    compile_project(scratch, panel)
    # Each root is compiled by a run of its own.
    wait_until("both classes", lambda: len(classes_in(os.path.dirname(project))) == 2 and not scratch.processes("javac"))
    for root in ("t wo", "one"):
        select = opened(panel, "Select", "Select class with main()")
        select.control(f"p.Main ({root}/p/Main.java)").click()
        select.press("OK")
        select.is_gone()
        wait_until("the choice", lambda: rows_of(project).get("CLASS_WITH_MAIN_SOURCE") == f"{root}/p/Main.java")
        wait_until("that it can run", lambda: panel.control("jdb debug").enabled)
        panel.press("java")
        console = Window("p.Main")
        wait_until("its words", lambda: "this side up" in scratch.saved_display(console))
        assert f"this side up in {root}\n" in scratch.saved_display(console)
        console.activate()
        console.close()
        console.is_gone()
        panel.activate()


def test_the_class_of_one_source_of_a_package_lies_beside_it(scratch):
    folder = os.path.join(scratch.work, "shop", "goods")
    os.makedirs(folder)
    source = os.path.join(folder, "Item.java")
    with open(source, "w", encoding="utf-8") as out:
        out.write("package shop.goods;\n\npublic class Item { Other other; }\nclass Other { }\n")
    _, panel = scratch.first_start()
    scratch.compile(panel, source)
    assert set(classes_in(scratch.work)) == {"shop/goods/Item.class", "shop/goods/Other.class"}
    assert scratch.editor_notes() == []


def test_a_source_in_another_folder_than_its_packages_is_compiled_and_told(scratch):
    source = os.path.join(scratch.work, "Item.java")
    with open(source, "w", encoding="utf-8") as out:
        out.write("package shop.goods;\n\npublic class Item { }\n")
    _, panel = scratch.first_start()
    panel.write(world.quoted(source))
    panel.press("javac")
    (_, log), = wait_until("the log in the editor", scratch.editor_notes)
    place = os.path.join(scratch.work, "shop", "goods")
    assert log.strip() == (f"{source} is of the package shop.goods, but its folder is not named so. Its classes go to "
                           f"{place}"), log
    assert set(classes_in(scratch.work)) == {"shop/goods/Item.class"}
