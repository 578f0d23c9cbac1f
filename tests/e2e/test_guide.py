"""The guide's first project, made, run and packed as it says, from the sources that it shows."""

import html
import os
import re
import subprocess

import person
import world
from person import Window, wait_until
from test_packages import compile_project, new_project_of_all


def sources_of_the_guide(scratch):
    with open(os.path.join(scratch.project, "guide", "usersguide.htm"), encoding="utf-8") as guide:
        shown = re.findall(r"<pre>(package.*?)</pre>", guide.read(), flags=re.DOTALL)
    names = ["shop/goods/Item.java", "shop/till/Main.java"]
    assert len(shown) == len(names), shown
    return zip(names, map(html.unescape, shown))


def test_the_first_project_goes_as_it_is_told(scratch):
    _, panel = scratch.first_start()
    for name, text in sources_of_the_guide(scratch):
        scratch.write(name, text)
    new_project_of_all(panel, os.path.join(scratch.work, "Shop.twp"))
    compile_project(scratch, panel)
    wait_until("the class", lambda: panel.field().text == "shop.till.Main")

    panel.press("java")
    console = Window("shop.till.Main")
    wait_until("its words", lambda: "Tea: 250 cents" in scratch.saved_display(console))
    console.activate()
    console.close()
    console.is_gone()
    panel.activate()

    next(one for one in panel.controls() if one.role == "page tab" and one.label.strip() == "Utilities").click()
    panel.press("jar")
    archives = Window("jar")
    archives.press("Create new archive")
    archive = os.path.join(scratch.work, "Shop.jar")
    world.answer_file_dialog(archive, archives)
    archives.press("Add all files,\nincluding all subfolders")
    archives.press("Create archive")
    archives.is_gone()
    wait_until("the archive", lambda: os.path.exists(archive) and not scratch.processes("jar"))
    said = subprocess.run(["java", "-jar", archive], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True,
                          timeout=person.LIMIT, text=True).stdout
    assert said == "Tea: 250 cents\n", said
