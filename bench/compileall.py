"""All sources of a real project compiled at once, by "javac  all" and by a bare `javac @list`; and one run for each."""

import os
import shutil
import subprocess
import sys

import rounds

LIBRARY = "libcommons-collections4-java"


def tools():
    return os.path.dirname(os.path.realpath(shutil.which("javac")))


def sources_of(work):
    """The library's own sources; fetched once, by the script that the comparison with the compiler uses, too."""
    script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "tests", "truth", "libraries.sh")
    folder = os.path.join(work, "libraries")
    if not os.path.isdir(os.path.join(folder, LIBRARY)):
        subprocess.run([script, folder, LIBRARY], check=True, stdout=sys.stderr)
    root = os.path.join(folder, LIBRARY, "src", "main", "java")
    return root, sorted(os.path.relpath(os.path.join(at, name), root) for at, _, names in os.walk(root) for name in names
                        if name.endswith(".java") and name != "package-info.java")


def main():
    programs, work = rounds.folders()
    root, sources = sources_of(work)
    configuration = os.path.join(work, "compileall")
    destination = os.path.join(work, "compileall-classes")
    for folder in (configuration, destination):
        os.makedirs(folder, exist_ok=True)
    project = os.path.join(root, "bench.twp")
    with open(project, "w", encoding="utf-8") as out:
        out.write(f"NEWER_JAVA  ON\nJAVAC_ONE_RUN  ON\nJAVA_PATH  {tools()}/\nJAVAC_DESTINATION  {destination}\n"
                  f"JAVAC_MY_JDKVERSION  Pre-1.4\nJAVAC_OPTIONS  -XDsuppressNotes\nPROJECT_SOURCES  {';'.join(sources)}\n")
    names = os.path.join(work, "compileall.list")
    with open(names, "w", encoding="utf-8") as out:
        out.writelines(f'"{os.path.join(root, source)}"\n' for source in sources)
    program = os.path.join(programs, "compileall")
    print(f"{len(sources)} sources of {LIBRARY}")
    medians = rounds.compare([
        rounds.Program("tarnwick, javac  all", program, configuration, tools(), destination, project),
        rounds.Program("javac @list", os.path.join(tools(), "javac"), "-g", "-XDsuppressNotes", "-d", destination, "-sourcepath", root,
                       "-classpath", destination, "@" + names),
    ], rounds=9)
    rounds.ratio(medians, "tarnwick, javac  all", "javac @list", "1.15")


main()
