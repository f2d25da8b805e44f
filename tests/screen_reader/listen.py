"""Hears a program as a screen reader does: listen.py PROCESS TITLE

Walks what the window of that title offers on the bus, prints a line for each part that the keyboard
goes to and that says nothing of what it is, and at last how many parts it heard.
"""

import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

# A table has a child for each cell: what holds for the first ones holds for all.
MOST_CHILDREN = 60
SECONDS_TO_APPEAR = 20
# Roles that tell a listener nothing of what can be done with a part.
MUTE_ROLES = {Atspi.Role.INVALID, Atspi.Role.UNKNOWN, Atspi.Role.REDUNDANT_OBJECT}
# Named by what they hold.
NAMED_BY_CONTENT = {Atspi.Role.MENU_BAR, Atspi.Role.PAGE_TAB_LIST, Atspi.Role.SCROLL_BAR,
                    Atspi.Role.TABLE_CELL, Atspi.Role.LIST_ITEM, Atspi.Role.TREE_ITEM,
                    Atspi.Role.SEPARATOR}
USED_BY_A_CLICK = {Atspi.Role.PUSH_BUTTON, Atspi.Role.CHECK_BOX, Atspi.Role.RADIO_BUTTON,
                   Atspi.Role.TOGGLE_BUTTON, Atspi.Role.MENU_ITEM, Atspi.Role.PAGE_TAB}


def children(part):
    for place in range(min(part.get_child_count(), MOST_CHILDREN)):
        child = part.get_child_at_index(place)
        if child is not None:
            yield child


def program(process):
    for each in children(Atspi.get_desktop(0)):
        if each.get_process_id() == process:
            return each
    return None


def window(process, title):
    end = time.monotonic() + SECONDS_TO_APPEAR
    while time.monotonic() < end:
        found = program(process)
        for each in children(found) if found is not None else ():
            if each.get_name() == title:
                return each
        time.sleep(0.05)
    return None


def fault(part):
    """What is wrong with a part, or nothing."""
    role = part.get_role()
    states = part.get_state_set()
    is_reached = states.contains(Atspi.StateType.FOCUSABLE) and states.contains(
        Atspi.StateType.SHOWING)
    is_item = role == Atspi.Role.MENU_ITEM
    if not is_reached and not is_item:
        return None
    if role in MUTE_ROLES:
        return "has no role"
    if role not in NAMED_BY_CONTENT and not part.get_name().strip():
        return "has no name"
    is_offered = states.contains(Atspi.StateType.ENABLED)
    if role in USED_BY_A_CLICK and is_offered and part.get_n_actions() == 0:
        return "cannot be pressed"
    return None


def walk(part, way, heard):
    heard[0] += 1
    wrong = fault(part)
    way = way + [f"{part.get_role_name()} “{part.get_name()}”"]
    if wrong:
        print(f"{wrong}: {' > '.join(way[-4:])}")
    for child in children(part):
        walk(child, way, heard)


def main():
    Atspi.set_timeout(10000, 20000)
    heard = [0]
    found = window(int(sys.argv[1]), sys.argv[2])
    if found is None:
        print(f"not on the bus: {sys.argv[2]}")
    else:
        walk(found, [], heard)
    print(heard[0])


main()
