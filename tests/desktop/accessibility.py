"""What screen readers are told of the four screens, asked and worked over the accessibility bus."""

import re
import sys
import time
from collections import Counter

import pyatspi
from gi.repository import GLib

PATIENCE = 30.0  # seconds
GREEK = r"[\u0370-\u03ff\u1f00-\u1fff]"
BILINGUAL_NAME = re.compile(rf"^{GREEK}.* · [A-Z]")
# What the keyboard need not reach; the drawing tells itself whether it does.
UNREACHED = (pyatspi.ROLE_LABEL, pyatspi.ROLE_MENU_BAR, pyatspi.ROLE_CANVAS)
BILINGUAL_LINES = re.compile(rf"^.*{GREEK}.*\n.*[A-Z].*$", re.DOTALL)


def fail(text):
    sys.exit(f"FAILED: {text}")


def expect(truth, text):
    if not truth:
        fail(text)


def wait_for(question, what):
    """The first answer that is something; while windows come and go, asking may fail."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            answer = question()
            if answer:
                return answer
        except (GLib.Error, LookupError, AttributeError, NotImplementedError):
            pass
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.1)
    fail(f"in vain waited for {what}")


def program():
    for application in pyatspi.Registry.getDesktop(0):
        if application is not None and application.name == "lensbench":
            return application
    return None


def shown(node):
    return node.getState().contains(pyatspi.STATE_SHOWING)


def screen(english):
    """The window whose name ends with these words, once it is seen."""

    def look():
        for window in program():
            if window.name.endswith(f" · {english}") and shown(window):
                return window
        return None

    return wait_for(look, f"the screen {english}")


def everything(node):
    for child in node:
        if child is not None and shown(child):
            yield child
            yield from everything(child)


def find(window, role, english):
    for node in everything(window):
        if node.getRole() == role and node.name.endswith(f" · {english}"):
            return node
    return fail(f"nothing in {window.name} is a {role} named {english}")


def press(window, role, english):
    find(window, role, english).queryAction().doAction(0)


def set_bar(window, english, value):
    find(window, pyatspi.ROLE_SCROLL_BAR, english).queryValue().currentValue = value


def drawing(window):
    return next(node for node in everything(window) if node.getRole() == pyatspi.ROLE_CANVAS)


def text_of(node):
    return node.queryText().getText(0, -1)


def expect_value(node):
    role, name = node.getRole(), node.name
    if role == pyatspi.ROLE_SCROLL_BAR:
        value = node.queryValue()
        expect(
            value.minimumValue < value.maximumValue
            and value.minimumValue <= value.currentValue <= value.maximumValue,
            f"the bar {name} is at {value.currentValue}",
        )
    elif role == pyatspi.ROLE_TEXT:
        expect(text_of(node), f"the box {name} has no text")
        expect(
            node.getState().contains(pyatspi.STATE_READ_ONLY), f"the box {name} can be written"
        )
    elif role == pyatspi.ROLE_LABEL:
        lines = node.description.split("\n")
        expect(len(lines) == 3 and lines[0], f"the label {name} says {lines}")
    elif role == pyatspi.ROLE_RADIO_BUTTON:
        chosen = node.getState().contains(pyatspi.STATE_CHECKED)
        expect(chosen == name.endswith(" · Rays and waves"), f"{name} is {chosen}")


def expect_screen(window, roles):
    """Exactly these controls, each with its words in both languages."""
    controls = [
        node
        for node in everything(window)
        # What only holds others; a bar without entries is nothing to be seen.
        if node.getRole() != pyatspi.ROLE_FILLER
        and (node.getRole() != pyatspi.ROLE_MENU_BAR or node.childCount > 0)
    ]
    found = Counter(node.getRole() for node in controls)
    expect(found == Counter(roles), f"{window.name} has {found}, not {roles}")
    for node in controls:
        expect(BILINGUAL_NAME.match(node.name), f"{node} has no name in both languages")
        if node.getRole() != pyatspi.ROLE_MENU_BAR:
            expect(
                BILINGUAL_LINES.match(node.description),
                f"{node.name} is described as {node.description!r}",
            )
        if node.getRole() not in UNREACHED:
            focusable = node.getState().contains(pyatspi.STATE_FOCUSABLE)
            expect(focusable, f"{node.name} cannot have the focus")
        expect_value(node)


def expect_words(window, *parts):
    """The drawing says all of this, in time."""
    wait_for(
        lambda: all(part in drawing(window).description for part in parts),
        f"words {parts} of {window.name}; it says {drawing(window).description}",
    )


def expect_told(change, window):
    """After the change the bus tells that the drawing has other words; how often it did."""
    told = []

    def listen(event):
        if event.source.getRole() == pyatspi.ROLE_CANVAS:
            told.append(event)

    kind = "object:property-change:accessible-description"
    pyatspi.Registry.registerEventListener(listen, kind)
    change()
    wait_for(lambda: told, f"news of the drawing of {window.name}")
    pyatspi.Registry.deregisterEventListener(listen, kind)
    return len(told)


def workbench():
    window = screen("Spherical lenses")
    expect_screen(
        window,
        {
            pyatspi.ROLE_CANVAS: 1,
            pyatspi.ROLE_SCROLL_BAR: 10,
            pyatspi.ROLE_TEXT: 7,
            pyatspi.ROLE_LABEL: 3,
            pyatspi.ROLE_CHECK_BOX: 2,
            pyatspi.ROLE_MENU_BAR: 1,
            pyatspi.ROLE_MENU_ITEM: 6,
        },
    )
    expect_words(window, "ακτίνα 100", "the radius 100", "Focal length f = 120", "No rays")

    def flood():
        for value in range(101, 131):
            set_bar(window, "Radius of the left circle", value)
            time.sleep(0.05)

    begun = time.monotonic()
    told = expect_told(flood, window)
    spent = time.monotonic() - begun
    expect(told <= 1 + spent / 0.5, f"{told} pieces of news in {spent:.1f} seconds")

    def longer():
        set_bar(window, "Radius of the left circle", 140)

    expect_told(longer, window)
    box = find(window, pyatspi.ROLE_TEXT, "Radius of the left circle")
    wait_for(lambda: text_of(box).endswith("=140"), "the text of the radius")
    expect_words(window, "ακτίνα 140", "the radius 140")

    set_bar(window, "Multiplier of the ray step", 60)
    label = find(window, pyatspi.ROLE_LABEL, "Multiplier of the ray step")
    wait_for(lambda: label.description.split("\n")[0].endswith("60"), "the text of the multiplier")
    check = find(window, pyatspi.ROLE_CHECK_BOX, "Waves and rays")
    check.queryAction().doAction(0)
    wait_for(lambda: check.getState().contains(pyatspi.STATE_CHECKED), "the check mark")


def one_ray():
    press(screen("Spherical lenses"), pyatspi.ROLE_MENU_ITEM, "One ray")
    window = screen("One ray")
    expect_screen(
        window,
        {
            pyatspi.ROLE_CANVAS: 1,
            pyatspi.ROLE_SCROLL_BAR: 4,
            pyatspi.ROLE_TEXT: 4,
            pyatspi.ROLE_PUSH_BUTTON: 1,
        },
    )
    set_bar(window, "Radius of circle 1", 120)
    expect_words(window, "Ο κύκλος 1 έχει κέντρο 0 και ακτίνα 120", "the radius 120", "No ray")
    press(window, pyatspi.ROLE_PUSH_BUTTON, "Back")


def ibn_sahl():
    press(screen("Spherical lenses"), pyatspi.ROLE_MENU_ITEM, "Lenses of Ibn Sahl")
    menu = screen("Lens menu")
    expect_screen(
        menu,
        {pyatspi.ROLE_SCROLL_BAR: 1, pyatspi.ROLE_PUSH_BUTTON: 3, pyatspi.ROLE_LABEL: 1},
    )
    set_bar(menu, "Index of refraction", 180)
    press(menu, pyatspi.ROLE_PUSH_BUTTON, "Biconvex hyperbolic lens")
    window = screen("Hyperbolic lens")
    expect_screen(
        window,
        {
            pyatspi.ROLE_CANVAS: 1,
            pyatspi.ROLE_RADIO_BUTTON: 3,
            pyatspi.ROLE_MENU_BAR: 1,
            pyatspi.ROLE_MENU_ITEM: 4,
        },
    )
    expect_words(window, "Αμφίκυρτος", "biconvex hyperbolic lens with the index of refraction 1.80")
    expect_words(window, "Rays and waves are shown.", "61 rays")
    press(menu, pyatspi.ROLE_PUSH_BUTTON, "Plano-convex hyperbolic lens")
    expect_words(window, "Επιπεδόκυρτος", "plano-convex")
    press(window, pyatspi.ROLE_MENU_ITEM, "Back to the lens menu")
    press(screen("Lens menu"), pyatspi.ROLE_PUSH_BUTTON, "Spherical lenses")


def main():
    wait_for(program, "the program on the bus")
    workbench()
    one_ray()
    ibn_sahl()
    try:
        press(screen("Spherical lenses"), pyatspi.ROLE_MENU_ITEM, "End")
    except GLib.Error:
        pass  # it may be gone before it answers


main()
