"""The way through the Windows program, under Wine, with stand-ins for the JDK's tools."""
import os, time, subprocess
import person
import wine_world
from person import Window, wait_until
from wine_world import windows_path

def shot(scratch, name):
    time.sleep(0.5)
    person.screenshot(f"/tmp/w/logs-g/{name}.png")

def dump(w):
    for c in w.controls(): print(c.role, repr(c.name), repr(c.text), c.area, c.enabled, c.focused, c.checked)

def test_walk(scratch):
    p = scratch.start()
    w = Window("Welcome to Tarnwick"); shot(scratch, "w1"); dump(w)
    w.press("OK")
    s = Window("Tarnwick settings"); shot(scratch, "w2"); dump(s)
    s.write(windows_path(scratch.jdk))
    shot(scratch, "w3")
    s.press("OK")
    panel = Window("Tarnwick"); shot(scratch, "w4"); dump(panel)
