"""The sources of the JDK, as Debian packs them."""

import os
import zipfile

SOURCES = "/usr/lib/jvm/openjdk-17/src.zip"


def unpacked(work, module=""):
    """The sources of a module, or of all; unpacks them once."""
    folder = os.path.join(work, "jdk")
    whole = os.path.join(work, f"jdk.{module}.whole")
    if not os.path.exists(whole):
        with zipfile.ZipFile(SOURCES) as archive:
            for name in archive.namelist():
                if name.startswith(module + "/" if module else "") and name.endswith(".java"):
                    archive.extract(name, folder)
        open(whole, "w").close()
    return sorted(os.path.join(at, name) for at, _, names in os.walk(os.path.join(folder, module)) for name in names)


def listed(work, name, files):
    """A file with one name in each line."""
    path = os.path.join(work, name)
    with open(path, "w") as out:
        out.writelines(file + "\n" for file in files)
    return path
