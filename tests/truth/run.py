#!/usr/bin/env python3
"""Compares our outlines of Java sources with those that a JDK's own compiler makes of them, file by file.

usage: run.py LISTER JDK FOLDER...     for example
       run.py build/linux/tests/outline_lister /usr/lib/jvm/default-java tests/truth/hard
All files *.java below the folders are read. Fails if one differs in which the compiler's parser finds no fault. With
"--write FILE" behind the JDK the compiler's outlines are kept there, each file by its name alone.
"""

import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))


def sources(folders):
    """All Java sources below the folders. Names that a list of lines can't hold are left out, and told."""
    found = sorted(os.path.join(at, name) for folder in folders for at, _, names in os.walk(folder) for name in names
                   if name.endswith(".java"))
    listed = [path for path in found if "\n" not in path]
    if len(listed) < len(found):
        print(f"{len(found) - len(listed)} files left out: a line end in the name")
    return listed


def outlines(text):
    """Gives for each file whether it has faults, and the lines of its outline."""
    found = {}
    for line in text.split("\n")[:-1]:
        if line.startswith("file "):
            faulty = line.endswith(" errors")
            current = []
            found[line[5:-7] if faulty else line[5:]] = (faulty, current)
        else:
            current.append(line)
    return found


def output_of(*command):
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True)
    return done.stdout.decode("utf-8", "surrogateescape")


def compare(truth, ours):
    """Prints what differs and the numbers; gives the number of sound files that differ."""
    if truth.keys() != ours.keys():
        sys.exit("The two did not read the same files.")
    sound = [path for path, (faulty, _) in truth.items() if not faulty]
    different = {path for path in truth if truth[path][1] != ours[path][1]}
    for path in sorted(different.intersection(sound)):
        print(f"different: {path}")
        for name, one, other in (("compiler", truth, ours), ("reader", ours, truth)):
            for line in one[path][1]:
                if line not in other[path][1]:
                    print(f"  only the {name}: {line}")
    types = [line for path in sound for line in truth[path][1] if line.startswith("type ")]
    mains = sum(line.endswith((" main classic", " main newer")) for line in types)
    differ = len(different.intersection(sound))
    print(f"{len(sound)} files without a fault, {len(types)} types, {mains} main methods: {differ} files differ")
    if len(sound) < len(truth):
        print(f"{len(truth) - len(sound)} files with faults, not judged: {len(different) - differ} of them differ")
    return differ


def main():
    lister, jdk, *folders = sys.argv[1:]
    kept = None
    if folders[:1] == ["--write"]:
        kept = folders[1]
        folders = folders[2:]
    sys.stdout.reconfigure(errors="surrogateescape")
    paths = sources(folders)
    if not paths:
        sys.exit("No sources there.")
    with tempfile.TemporaryDirectory() as work:
        names = os.path.join(work, "list")
        with open(names, "w", encoding="utf-8", errors="surrogateescape") as out:
            out.writelines(path + "\n" for path in paths)
        subprocess.run([os.path.join(jdk, "bin", "javac"), "-d", work, os.path.join(HERE, "OutlineTruth.java")], check=True)
        truth = output_of(os.path.join(jdk, "bin", "java"), "-cp", work, "OutlineTruth", names)
        ours = output_of(lister, names)
    if kept:
        with open(kept, "w", encoding="utf-8", errors="surrogateescape", newline="\n") as out:
            for line in truth.split("\n")[:-1]:
                out.write(("file " + os.path.basename(line[5:]) if line.startswith("file ") else line) + "\n")
    sys.exit(compare(outlines(truth), outlines(ours)) > 0)


main()
