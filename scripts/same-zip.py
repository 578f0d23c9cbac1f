#!/usr/bin/env python3
"""Packs a folder so that the same files give the same bytes: same-zip.py FOLDER ARCHIVE SECONDS-SINCE-1970"""

import os
import sys
import time
import zipfile


def main():
    folder, archive, seconds = sys.argv[1:]
    when = time.gmtime(int(seconds))[:6]
    parent = os.path.dirname(os.path.abspath(folder))
    names = sorted(os.path.join(at, name) for at, _, files in os.walk(folder) for name in files)
    with zipfile.ZipFile(archive, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as out:
        for name in names:
            info = zipfile.ZipInfo(os.path.relpath(name, parent), when)
            info.compress_type = zipfile.ZIP_DEFLATED
            info.external_attr = (0o755 if name.endswith(".exe") else 0o644) << 16
            with open(name, "rb") as content:
                out.writestr(info, content.read())


main()
