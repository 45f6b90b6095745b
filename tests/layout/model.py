#!/usr/bin/env python3
"""A second opinion on layouts: the rules of measuring and placing once more, in another language and
without the library's code, and some hundred invented trees with what becomes of them.

    model.py write FILE    writes the trees and their results
    model.py check FILE    ends with 1 when FILE is not what the rules give

A tree in the file is a line `area LEFT TOP RIGHT BOTTOM`, a line for each node in the order of
declaration, `end` after the last child of a pane, and an empty line. A node is

    item MODE WIDTH HEIGHT MINWIDTH MINHEIGHT CONTROL SHOWN KEEPSHEIGHT RECT | RESULT
    pane VERTICAL MODE OWN SPACING BORDERS FRAME INSETS CONTROL ALONE RECT | RESULT

where RECT, BORDERS and INSETS are four numbers and FRAME is 0 (none), 1 (box) or 2 (tab control). RESULT is shown,
least width, least height, most width, most height, and the rectangle where the last placing put the node.
"""
import sys

WIDTH, HEIGHT = 0, 1
FIXED = (0x1, 0x4)
PERCENT = (0x2, 0x8)
STRETCH = (0x100, 0x200)
FAR = (0x20, 0x80)
CENTRE = (0x30, 0xC0)


def quotient(dividend, divisor):
    """Division that drops the fraction, whatever the signs."""
    whole = abs(dividend) // abs(divisor)
    return whole if (dividend < 0) == (divisor < 0) else -whole


class Item:
    def __init__(self, mode, size, minimum, control=True, visible=True, keeps_height=False, rect=(0, 0, 0, 0)):
        self.mode, self.size, self.minimum = mode, size, minimum
        self.control, self.visible, self.keeps_height, self.rect = control, visible, keeps_height, rect
        self.put = None

    def controls(self):
        return [self] if self.control else []

    def shown(self):
        return self.visible if self.control else True

    def fixed_size(self, axis):
        return self.size[axis]

    def wanted(self, axis, parent):
        return quotient(parent * self.size[axis], 100)

    def least(self, axis):
        if not self.shown():
            return 0
        return self.size[axis] if self.mode & FIXED[axis] else max(self.minimum[axis], 5)

    def most(self, axis):
        if not self.shown():
            return 0
        return self.size[axis] if self.mode & FIXED[axis] else -1

    def place(self, slot):
        if not self.control:
            self.put = slot
            return
        put = list(slot)
        for axis in (WIDTH, HEIGHT):
            own = self.rect[axis + 2] - self.rect[axis]
            if self.mode & FIXED[axis] and not self.mode & STRETCH[axis]:
                difference = (slot[axis + 2] - slot[axis]) - own
                shift = 0
                if self.mode & CENTRE[axis] == CENTRE[axis]:
                    shift = quotient(difference, 2)
                elif self.mode & FAR[axis]:
                    shift = difference
                put[axis] = slot[axis] + shift
                put[axis + 2] = put[axis] + own
        if self.keeps_height:
            put[3] = put[1] + self.rect[3] - self.rect[1]
        self.put = (put[0], put[1], max(put[0], put[2]), max(put[1], put[3]))


class Pane:
    def __init__(self, axis, mode, own, spacing, borders, children, frame=0, insets=(0, 0, 0, 0), control=False,
                 alone=False, rect=(0, 0, 0, 0)):
        self.axis, self.mode, self.own, self.spacing, self.borders = axis, mode, own, spacing, borders
        self.children, self.frame, self.insets = children, frame, insets
        self.control, self.alone, self.rect = control, alone, rect
        self.put = None

    def controls(self):
        """What counts as a control at or below this pane; a tab control does, the frame of a box does not."""
        found = [control for child in self.children for control in child.controls()]
        return found + [self] if self.frame == 2 and self.control else found

    def shown(self):
        if self.alone:
            return True
        if any(child.controls() for child in self.children):
            return any(child.controls() and child.shown() for child in self.children)
        return any(child.shown() for child in self.children)

    def fixed_size(self, axis):
        return self.own if self.own != 0 else self.least(axis)

    def wanted(self, axis, parent):
        return quotient(parent * self.own, 100)

    def edges(self, axis):
        return self.borders[axis] + self.borders[axis + 2] + self.insets[axis] + self.insets[axis + 2]

    def least(self, axis):
        if not self.shown():
            return 0
        leasts = [child.least(axis) for child in self.children]
        if axis == self.axis:
            counted = [max(least, 5) for least in leasts if least > 0]
            return sum(counted) + (len(counted) - 1) * self.spacing + self.edges(axis) if counted else 0
        if self.mode & FIXED[axis] and self.own != 0:
            return self.own
        largest = max(leasts, default=0)
        return largest + self.edges(axis) if largest >= 1 else largest

    def most(self, axis):
        if not self.shown():
            return 0
        mosts = [child.most(axis) for child in self.children]
        if axis == self.axis:
            if -1 in mosts:
                return -1
            total = -1 + sum(mosts)
            if total < 0:
                return 0
            return total + (len([most for most in mosts if most != 0]) - 1) * self.spacing + self.edges(axis)
        if self.mode & FIXED[axis] and self.own > 0:
            return self.own
        return -1 if -1 in mosts else max(mosts, default=0)

    def place(self, slot):
        area = list(slot)
        if self.frame == 1 and self.mode & FIXED[self.axis] and self.own != 0:
            area[self.axis + 2] = area[self.axis] + self.own
        if self.frame != 0:
            area = [area[0], area[1], max(area[0], area[2]), max(area[1], area[3])]
        self.put = tuple(area)
        area = [area[0] + self.insets[0], area[1] + self.insets[1], area[2] - self.insets[2], area[3] - self.insets[3]]
        children = [child for child in self.children if child.shown()]
        if not children:
            return
        axis, cross = self.axis, 1 - self.axis
        extent = area[axis + 2] - area[axis]
        extent -= (len(children) - 1) * self.spacing + self.borders[axis] + self.borders[axis + 2]
        sizes = share(children, axis, extent)
        position = area[axis] + self.borders[axis]
        for child, size in zip(children, sizes):
            part = [0, 0, 0, 0]
            part[axis], part[axis + 2] = position, position + size
            part[cross], part[cross + 2] = area[cross] + self.borders[cross], area[cross + 2] - self.borders[cross + 2]
            child.place(tuple(part))
            position += size + self.spacing


class Part:
    """A child while lengths are shared out."""

    def __init__(self, child, axis):
        self.low, self.high = child.least(axis), child.most(axis)
        self.child, self.size, self.clamped, self.raised = child, 0, False, False
        fixed = child.mode & FIXED[axis]
        self.kind = "fixed" if fixed else "percent" if child.mode & PERCENT[axis] else "greedy"
        self.stretches = fixed and child.mode & STRETCH[axis]


def share(children, axis, extent):
    parts = [Part(child, axis) for child in children]
    for part in parts:
        if part.kind == "fixed":
            part.size = part.child.fixed_size(axis)
            extent -= part.size
    extent = max(extent, 0)
    extent = share_percents([part for part in parts if part.kind == "percent"], axis, extent)
    extent = share_greedies([part for part in parts if part.kind == "greedy"], extent)
    stretching = [part for part in parts if part.stretches]
    if extent > 0:
        while stretching:
            part, more = stretching[0], quotient(extent, len(stretching))
            part.size += more
            extent -= more
            del stretching[0]
    return [part.size for part in parts]


def share_percents(parts, axis, extent):
    base, correction, give_back, total = extent, 0, 0, 0
    for part in parts:
        want = part.child.wanted(axis, base)
        if want < part.low:
            part.size, part.clamped = part.low, True
            correction += part.low - want
        elif part.high >= 0 and want > part.high:
            part.size, part.clamped = part.high, True
            correction += part.high - want
        else:
            part.size = want
            give_back += want - part.low
            total += want
        extent -= want
    if give_back < correction and extent >= correction - give_back:
        extent -= correction - give_back
        correction = give_back
    spread(parts, correction, total, False)
    return extent


def share_greedies(parts, extent):
    correction, total = 0, 0
    for index, part in enumerate(parts):
        piece = quotient(extent, len(parts) - index)
        if piece < part.low:
            part.size, part.clamped, part.raised = part.low, True, True
            correction += part.low - piece
        elif part.high != -1 and piece > part.high:
            part.size, part.clamped = part.high, True
            correction += part.high - piece
        else:
            part.size = piece
            total += piece
        extent -= piece
    correction = spread(parts, correction, total, True)
    for part in parts:
        if correction < 0 and part.raised:
            more = -correction if part.high == -1 else min(-correction, max(part.high - part.low, 0))
            part.size += more
            correction += more
    return extent


def spread(parts, correction, total, greedy):
    while correction != 0 and total >= 0:
        taken = 0
        for part in parts:
            if part.clamped or part.size < 1:
                continue
            whole = abs(correction) <= 5
            piece = correction if whole else quotient(part.size * correction, total)
            if greedy and piece == 0:
                piece, whole = correction - taken, True
            if part.size - piece >= part.low:
                part.size -= piece
                taken += piece
                if whole:
                    break
            else:
                taken += part.size - part.low
                part.size, part.clamped = part.low, True
                total += part.low
        correction -= taken
        if taken == 0:
            break
    return correction


class Chance:
    """The same numbers on every machine."""

    def __init__(self, seed):
        self.state = seed * 2654435761 + 12345

    def below(self, limit):
        self.state = (self.state * 6364136223846793005 + 1442695040888963407) % 2**64
        return (self.state >> 33) % limit

    def one_in(self, count):
        return self.below(count) == 0

    def rect(self, width, height):
        left, top = self.below(300), self.below(200)
        return (left, top, left + width, top + height)


def invent_mode(chance):
    mode = 0
    for axis in (WIDTH, HEIGHT):
        kind = chance.below(20)
        if kind < 7:
            mode |= FIXED[axis]
        elif kind < 12:
            mode |= PERCENT[axis]
        elif kind == 12:
            mode |= FIXED[axis] | PERCENT[axis]
        mode |= (0, 0, 0, STRETCH[axis])[chance.below(4)] | (0, 0, FAR[axis], CENTRE[axis])[chance.below(4)]
    return mode


def invent_item(chance):
    mode = invent_mode(chance)
    if chance.one_in(6):
        axis = chance.below(2)
        return Item(FIXED[1 - axis], (0, 0), (-5, -5), False)
    size = [0, 0]
    for axis in (WIDTH, HEIGHT):
        size[axis] = chance.below(101) if mode & PERCENT[axis] else chance.below(90)
    if chance.one_in(12):
        axis = chance.below(2)
        size[axis] = -chance.below(12)
        return Item(FIXED[0] | FIXED[1], tuple(size), (0, 0), False)
    minimum = (chance.below(60), chance.below(40)) if chance.one_in(2) else (0, 0)
    rect = chance.rect(size[0] if chance.below(3) else chance.below(120), size[1] if chance.below(3) else chance.below(60))
    return Item(mode, tuple(size), minimum, True, chance.below(7) != 0, chance.one_in(9), rect)


def invent_pane(chance, depth, room):
    axis = chance.below(2)
    mode = 0 if chance.one_in(2) else invent_mode(chance)
    own = 0 if chance.one_in(3) else chance.below(100)
    border = chance.below(8)
    borders = (border,) * 4 if chance.one_in(2) else tuple(chance.below(9) for _ in range(4))
    frame = (0, 0, 0, 0, 1, 2)[chance.below(6)]
    insets = ((0, 0, 0, 0), (0, chance.below(20), 0, 0), (4, 25, 4, 4))[frame]
    control = frame != 0 and chance.below(5) != 0
    if frame == 2 and not control:
        insets = (0, 0, 0, 0)
    alone = frame == 2 and control and chance.below(4) != 0
    rect = chance.rect(chance.below(200), chance.below(150)) if control else (0, 0, 0, 0)
    children = []
    for _ in range(chance.below(7) if depth else 1 + chance.below(7)):
        if len(children) < room and depth < 5 and chance.one_in(3):
            children.append(invent_pane(chance, depth + 1, room // 2))
        else:
            children.append(invent_item(chance))
    return Pane(axis, mode, own, chance.below(9), borders, children, frame, insets, control, alone, rect)


def numbers(*values):
    flat = []
    for value in values:
        flat += value if isinstance(value, (tuple, list)) else [value]
    return " ".join(str(int(value)) for value in flat)


def write_node(node, lines):
    result = numbers(node.shown(), *(getattr(node, limit)(axis) for limit in ("least", "most") for axis in (0, 1)),
                     node.put or (0, 0, 0, 0))
    if isinstance(node, Item):
        told = numbers(node.mode, node.size, node.minimum, node.control, node.visible, node.keeps_height, node.rect)
        lines.append(f"item {told} | {result}")
        return
    told = numbers(node.axis, node.mode, node.own, node.spacing, node.borders, node.frame, node.insets, node.control,
                   node.alone, node.rect)
    lines.append(f"pane {told} | {result}")
    for child in node.children:
        write_node(child, lines)
    lines.append("end")


def trees(count):
    lines = []
    for seed in range(count):
        chance = Chance(seed)
        root = invent_pane(chance, 0, 6)
        area = chance.rect(chance.below(700), chance.below(500))
        if root.shown():
            root.place(area)
        lines.append("area " + numbers(area))
        write_node(root, lines)
        lines.append("")
    return "\n".join(lines)


def main():
    if len(sys.argv) != 3 or sys.argv[1] not in ("write", "check"):
        print(__doc__)
        return 2
    text = trees(400)
    if sys.argv[1] == "write":
        with open(sys.argv[2], "w", encoding="ascii", newline="\n") as file:
            file.write(text)
        return 0
    with open(sys.argv[2], encoding="ascii") as file:
        same = file.read() == text
    print("the trees are those of the rules" if same else "the trees are not those of the rules: model.py write")
    return 0 if same else 1


sys.exit(main())
