"""Programs of today run from the panel: classes in packages, archives, classes of a newer Java, further options."""

import glob
import os
import re
import subprocess

import person
import world
from person import Window, wait_until
from test_bad_input import message

MAIN = """package shop.till;

public class Main {
    public static void main(String[] arguments) {
        System.out.println("at the till: " + Main.class.getName() + " " + arguments.length);
    }
}
"""

# A pattern for a number is a preview of JDK 25, one in a switch is one of JDK 17.
PREVIEW = """public class Preview {
    public static void main(String[] arguments) {
        Object number = arguments.length + 42;
        String text = switch (number) { case Integer i when -> "preview " + i; default -> "none"; };
        System.out.println(text);
    }
}
"""


def tools_of(version):
    """The folder of the tools of a JDK of this version."""
    for release in sorted(glob.glob("/usr/lib/jvm/*/release")):
        with open(release, encoding="utf-8") as lines:
            found = re.search(r'^JAVA_VERSION="(\d+)', lines.read(), re.MULTILINE)
        tools = os.path.join(os.path.realpath(os.path.dirname(release)), "bin", "")
        if found and int(found.group(1)) == version and os.path.exists(tools + "javac"):
            return tools
    raise world.Skipped(f"no JDK {version} in /usr/lib/jvm")


def compiled_by(scratch, version, *arguments):
    subprocess.run([tools_of(version) + "javac", *arguments], check=True, timeout=person.LIMIT, cwd=scratch.work, env=scratch.environment)


def panel_with(scratch, version):
    if not os.path.exists(scratch.configuration):
        scratch.configured()
    scratch.change_settings(JAVA_PATH=tools_of(version), NEWER_JAVA="ON")
    scratch.start()
    return Window("Tarnwick")


def test_a_class_in_a_package_runs(scratch):
    scratch.write("shop/till/Main.java", MAIN)
    compiled_by(scratch, 17, "-d", ".", "shop/till/Main.java")
    for version in (17, 25):
        panel = panel_with(scratch, version)
        console = scratch.run_class(panel, os.path.join(scratch.work, "shop", "till", "Main.class"))
        wait_until("its words", lambda: "at the till: shop.till.Main 0" in scratch.saved_display(console))
        console.close()
        console.is_gone()
        panel.press("Exit")
        panel.is_gone()


def test_an_archive_runs(scratch):
    scratch.write("shop/till/Main.java", MAIN)
    compiled_by(scratch, 17, "-d", "made", "shop/till/Main.java")
    archive = os.path.join(scratch.work, "die Kasse.jar")
    subprocess.run([tools_of(17) + "jar", "--create", "--file", archive, "--main-class", "shop.till.Main", "-C",
                    os.path.join(scratch.work, "made"), "."], check=True, timeout=person.LIMIT, env=scratch.environment)
    panel = panel_with(scratch, 17)
    panel.write(world.quoted(archive) + " one two", index=1)
    panel.press("java")
    console = Window("die Kasse")
    wait_until("its words", lambda: "at the till: shop.till.Main 2" in scratch.saved_display(console))


def test_a_class_of_a_newer_java_is_told_before_it_starts(scratch):
    scratch.write("shop/till/Main.java", MAIN)
    compiled_by(scratch, 25, "-d", ".", "shop/till/Main.java")
    panel = panel_with(scratch, 17)
    path = os.path.join(scratch.work, "shop", "till", "Main.class")
    panel.write(world.quoted(path), index=1)
    panel.press("java")
    words = message()
    assert "The class shop.till.Main was compiled for Java 25. The JDK 17 of the settings can't run it." in words, words
    person.key("Return")
    console = Window("Main")
    wait_until("what java says", lambda: "UnsupportedClassVersionError" in scratch.saved_display(console))


def write_options(panel, page, text):
    """Types further options on a page of the settings."""
    panel.press("Settings")
    settings = Window("Tarnwick settings")
    settings.press(page)
    label = settings.control("More options").area
    fields = sorted(settings.fields(), key=lambda one: (one.area[1], one.area[0]))
    settings.write(text, index=next(i for i, one in enumerate(fields) if abs(one.area[1] + one.area[3] // 2 - label[1] - label[3] // 2) < 10))
    settings.press("OK")
    settings.is_gone()


def test_a_preview_runs_by_the_further_options(scratch):
    for version in (25, 17):
        when = "when i > 5 " if version == 25 else ""
        number = "int i" if version == 25 else "Integer i"
        source = scratch.write("Preview.java", PREVIEW.replace("Integer i when ", f"{number} {when}"))
        panel = panel_with(scratch, version)
        write_options(panel, "javac", f"--enable-preview --release {version}")
        write_options(panel, "java", "--enable-preview")
        assert scratch.settings()["JAVAC_OPTIONS"] == f"--enable-preview --release {version}"
        assert scratch.settings()["JAVA_OPTIONS"] == "--enable-preview"
        compiled = scratch.compile(panel, source)
        console = scratch.run_class(panel, compiled)
        wait_until("its words", lambda: "preview 42" in scratch.saved_display(console))
        console.close()
        console.is_gone()
        panel.press("Exit")
        panel.is_gone()
        os.remove(compiled)
