"""Documentation from the window "javadoc", made by the real JDKs of this machine."""

import os
import shutil
import signal

import person
import world
from person import Window, wait_until
from test_ending import expect_the_end
from test_jar import jdks, leave, picture, start

SOURCES, PATHS, OPTIONS, DOCLET_PATHS, DOCLET_OPTIONS = ("source files", "javadoc files and paths", "javadoc options",
                                                         "doclet files and paths", "doclet options")
# The fields of the pages, counted from the top.
FILES, PACKAGES = range(2)
SOURCEPATH = 0
DESTINATION, HELPFILE = range(2)

COUNT = 52
NAMES = [f"Part{number:02}" for number in range(COUNT)]


def make_sources(folder):
    """A package of many classes."""
    for name in NAMES:
        write_source(folder, name)
    return folder


def write_source(folder, name):
    os.makedirs(os.path.join(folder, "shop"), exist_ok=True)
    with open(os.path.join(folder, "shop", name + ".java"), "w", encoding="utf-8") as out:
        out.write(f"package shop;\n\n/** The thing {name}.\n * @author Zoë\n * @version 7\n * @todo polish it */\n"
                  f"public class {name} {{\n  /** Makes one. */\n  public {name}() {{ }}\n\n"
                  f"  /** Counts. */\n  private int count;\n\n  /** @return a part */\n"
                  f"  public Part00 part() {{ return null; }}\n}}\n")


def open_dialog(panel):
    panel.activate()
    panel.press("javadoc")
    return Window("javadoc")


def turn_to(dialog, page):
    def opened():
        tab = next(one for one in dialog.controls() if one.role == "page tab" and one.label == page)
        if not tab.selected:
            tab.click()
        return tab.selected
    wait_until(f"the page {page!r}", opened)


def fill(dialog, page, field, text):
    turn_to(dialog, page)
    dialog.write(text, field)


def empty(dialog, page, field):
    turn_to(dialog, page)

    def emptied():
        dialog.field(field).click()
        person.key("ctrl+a", "Delete")
        return dialog.field(field).text == ""
    wait_until(f"an empty field {field}", emptied)


def lists(scratch):
    return [name for name in os.listdir(scratch.config) if "javadoc_list" in name]


def run(scratch, panel, dialog):
    """Runs javadoc; gives the log that is shown then."""
    notes = len(scratch.editor_notes())
    dialog.press("Run javadoc")
    dialog.is_gone()
    log = wait_until("the log", lambda: scratch.editor_notes()[notes:])[0][1]
    wait_until("the end of the list of files", lambda: not lists(scratch))
    return log


def classes_in(documentation):
    """The classes that have a page."""
    package = os.path.join(documentation, "shop")
    return sorted(name.removesuffix(".html") for name in os.listdir(package) if name.startswith("Part"))


def text_of(*names):
    with open(os.path.join(*names), encoding="utf-8") as page:
        return page.read()


def test_a_package_of_many_sources_is_documented_in_three_ways(scratch):
    scratch.configured()
    sources = make_sources(os.path.join(scratch.work, "src"))
    for number, jdk in enumerate(jdks()):
        program, panel = start(scratch, jdk)

        # By a list: the names hold no blank as seen from the source path.
        listed = os.path.join(scratch.work, f"listed {number}")
        dialog = open_dialog(panel)
        names = [f"shop/{name}.java" for name in NAMES]
        fill(dialog, SOURCES, FILES, " ".join(names))
        fill(dialog, PATHS, SOURCEPATH, world.quoted(sources))
        fill(dialog, DOCLET_PATHS, DESTINATION, world.quoted(listed))
        picture(scratch, f"javadoc-{number}")
        log = run(scratch, panel, dialog)
        header = log.strip().split("\n")[0]
        assert header.startswith("javadoc ") and header.endswith('Tarnwick_javadoc_list1.tmp"') and '@"' in header, header
        assert "Part07.java" not in header and "Part07" in log, log
        assert classes_in(listed) == NAMES, log

        # By their names: these hold blanks. The last list shows again, and is cleared.
        named = os.path.join(scratch.work, f"named {number}")
        dialog = open_dialog(panel)
        assert dialog.field(FILES).text == " ".join(names)
        dialog.press("Clear the Java files")
        wait_until("an empty list", lambda: dialog.field(FILES).text == "")
        first = os.path.join(sources, "shop", "Part00.java")
        dialog.press("Add to the Java files")
        world.answer_file_dialog(first, dialog)
        wait_until("the file in the list", lambda: dialog.field(FILES).text == f'"{first}" ')
        fill(dialog, SOURCES, FILES, " ".join(f'"{sources}/shop/{name}.java"' for name in NAMES))
        fill(dialog, DOCLET_PATHS, DESTINATION, world.quoted(named))
        log = run(scratch, panel, dialog)
        header = log.strip().split("\n")[0]
        assert f'"{first}"\t"' in header and "javadoc_list" not in header, header
        assert classes_in(named) == NAMES, log

        # By their package: one file has to stand beside it.
        packed = os.path.join(scratch.work, f"packed {number}")
        dialog = open_dialog(panel)
        fill(dialog, SOURCES, FILES, "shop/Part00.java")
        fill(dialog, SOURCES, PACKAGES, "shop")
        fill(dialog, PATHS, SOURCEPATH, world.quoted(sources))
        fill(dialog, DOCLET_PATHS, DESTINATION, world.quoted(packed))
        log = run(scratch, panel, dialog)
        assert " shop @" in log, log
        assert classes_in(packed) == NAMES, log
        leave(program, panel)
        scratch.change_settings(JDOC_PACKAGELIST="")


# Every switch of the settings that goes with the others, and every text that needs nothing from the network.
SWITCHES = ["VERBOSE", "PRIVATE", "USE", "VERSION", "AUTHOR", "BREAKITERATOR", "DOCFILESSUBDIRS", "LINKSOURCE", "SPLITINDEX",
            "NODEPRECATED", "NODEPRECATEDLIST", "NOTREE", "NOSINCE", "NONAVBAR", "SERIALWARN"]
TEXTS = {"LOCALE": ("en_US", "-locale"), "ENCODING": ("UTF-8", "-encoding"), "SUBPACKAGES": ("shop", "-subpackages"),
         "EXCLUDE": ("none", "-exclude"), "EXCLUDESUBDIR": ("none", "-excludedocfilessubdir"),
         "WINDOWTITLE": ('"The shop"', "-windowtitle"), "DOCTITLE": ('"All its parts"', "-doctitle"),
         "HEADER": ('"a header"', "-header"), "FOOTER": ('"a footer"', "-footer"), "BOTTOM": ('"at the bottom"', "-bottom"),
         "GROUP": ('"Things" shop', "-group"), "DOCENCODING": ("UTF-8", "-docencoding"), "CHARSET": ("UTF-8", "-charset"),
         "NOQUALIFIER": ("all", "-noqualifier"), "TAGLETPATH": ("lib", "-tagletpath"), "DOCLETPATH": ("lib", "-docletpath")}


def test_options_reach_javadoc(scratch):
    scratch.configured()
    sources = make_sources(os.path.join(scratch.work, "src"))
    for name in ("Help.html", "Overview.html", "style.css"):
        scratch.write(name, "<html><body><p>mine</p></body></html>" if name.endswith("html") else "p { color: red }")
    scratch.write("others/element-list", "java.util\n")
    for jdk in jdks():
        destination = os.path.join(scratch.work, "all options")
        shutil.rmtree(destination, ignore_errors=True)
        files = {"OVERVIEW": ("Overview.html", "-overview"), "HELPFILE": ("Help.html", "-helpfile"),
                 "STYLESHEET": ("style.css", "-stylesheetfile")}
        texts = TEXTS | {tag: (world.quoted(os.path.join(scratch.work, name)), option)
                         for tag, (name, option) in files.items()}
        texts["DESTINATION"] = (world.quoted(destination), "-d")
        texts["LINKOFFLINE"] = ("https://nowhere.invalid/ " + world.quoted(os.path.join(scratch.work, "others")), "-linkoffline")
        scratch.change_settings(**{"JDOC_" + tag: "ON" for tag in SWITCHES},
                                **{"JDOC_" + tag: value for tag, (value, _) in texts.items()},
                                JDOC_JOPTION="-J-Xmx300m", JDOC_TAG='todo:a:"To do:"',
                                # What the JDK before has left behind.
                                JDOC_PUBLIC="OFF", JDOC_QUIET="OFF", JDOC_NOCOMMENT="OFF", JDOC_NOINDEX="OFF", JDOC_NOHELP="OFF")
        program, panel = start(scratch, jdk)
        dialog = open_dialog(panel)
        for number, page in enumerate((SOURCES, PATHS, OPTIONS, DOCLET_PATHS, DOCLET_OPTIONS)):
            turn_to(dialog, page)
            picture(scratch, f"javadoc-page-{number}")
        fill(dialog, SOURCES, FILES, "shop/Part00.java")
        fill(dialog, PATHS, SOURCEPATH, world.quoted(sources))
        log = run(scratch, panel, dialog)
        header = log.strip().split("\n")[0]
        for tag in SWITCHES:
            assert f" -{tag.lower()} " in header, (tag, header)
        for value, option in texts.values():
            assert f" {option} {value} " in header, (option, header)
        assert " -J-Xmx300m " in header and ' -tag todo:a:"To do:" ' in header, header
        assert "error:" not in log, log

        # They are not only taken, they do something.
        page = text_of(destination, "shop", "Part01.html")
        assert classes_in(destination) == NAMES and "The shop" in text_of(destination, "index.html")
        for words in ("count", "To do:", "polish it", "Zoë", "at the bottom"):
            assert words in page, words
        assert os.path.exists(os.path.join(destination, "Help.html")) and os.path.isdir(os.path.join(destination, "src-html"))
        assert os.path.isdir(os.path.join(destination, "shop", "class-use")) and os.path.isdir(os.path.join(destination, "index-files"))
        assert not os.path.exists(os.path.join(destination, "overview-tree.html"))

        # Those that do not go with the others.
        shutil.rmtree(destination)
        dialog = open_dialog(panel)
        fill(dialog, PATHS, SOURCEPATH, world.quoted(sources))
        empty(dialog, DOCLET_PATHS, HELPFILE)
        turn_to(dialog, OPTIONS)
        dialog.press("-public")
        wait_until("the other mark to go", lambda: not dialog.control("-private").checked)
        dialog.press("-verbose")
        dialog.press("-quiet")
        turn_to(dialog, DOCLET_OPTIONS)
        for label in ("splitindex", "nocomment", "noindex", "nohelp"):
            dialog.press(label)
        header = run(scratch, panel, dialog).strip().split("\n")[0]
        for option in ("-public", "-quiet", "-nocomment", "-noindex", "-nohelp"):
            assert f" {option} " in header, (option, header)
        for option in ("-private", "-verbose", "-splitindex", "-helpfile"):
            assert f" {option} " not in header, (option, header)
        assert classes_in(destination) == NAMES
        assert not [name for name in os.listdir(destination) if name.startswith(("index-", "help-doc"))]
        leave(program, panel)


def test_what_javadoc_refuses_is_shown_in_its_own_words(scratch):
    scratch.configured()
    for jdk in jdks():
        program, panel = start(scratch, jdk)
        dialog = open_dialog(panel)
        fill(dialog, SOURCES, FILES, '"no such.java"')
        log = run(scratch, panel, dialog)
        assert "no such.java" in log and "error" in log, log
        dialog = open_dialog(panel)
        assert dialog.field(FILES).text == '"no such.java"', "what was typed is still there"
        fill(dialog, SOURCES, FILES, "-nonsense")
        log = run(scratch, panel, dialog)
        assert "error: invalid flag: -nonsense" in log, log
        leave(program, panel)


def test_a_javadoc_that_hangs_ends_with_the_program(scratch):
    scratch.configured()
    scratch.write("jdk/javadoc", "#!/bin/sh\nexec sleep 3600\n")
    os.chmod(os.path.join(scratch.work, "jdk", "javadoc"), 0o755)
    scratch.write("shop/A.java", "class A { }\n")
    program, panel = start(scratch, os.path.join(scratch.work, "jdk"))
    dialog = open_dialog(panel)
    fill(dialog, SOURCES, FILES, "shop/A.java")
    fill(dialog, PATHS, SOURCEPATH, world.quoted(scratch.work))
    dialog.press("Run javadoc")
    wait_until("the tool", lambda: scratch.processes("sleep"))
    assert lists(scratch)
    expect_the_end(scratch, signal.SIGTERM)
    wait_until("the end of the tool", lambda: not scratch.processes("sleep"))
