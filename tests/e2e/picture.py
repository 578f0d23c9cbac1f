"""Pictures of parts of the screen, looked at pixel by pixel."""

import subprocess

WHITE, BLACK = (255, 255, 255), (0, 0, 0)


class Picture:
    """What shows in an area of the screen now."""

    def __init__(self, area):
        left, top, self.width, self.height = area
        self.bytes = subprocess.run(["import", "-silent", "-window", "root", "-crop",
                                     f"{self.width}x{self.height}+{left}+{top}", "+repage", "-depth", "8", "rgb:-"],
                                    stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True, timeout=60).stdout
        assert len(self.bytes) == 3 * self.width * self.height, (len(self.bytes), area)

    def pixel(self, x, y):
        at = 3 * (y * self.width + x)
        return tuple(self.bytes[at:at + 3])

    def pixels(self, left, top, right, bottom):
        """All colours in a rectangle and how often they come."""
        counts = {}
        for y in range(top, bottom):
            line = self.bytes[3 * (y * self.width + left):3 * (y * self.width + right)]
            for at in range(0, len(line), 3):
                colour = tuple(line[at:at + 3])
                counts[colour] = counts.get(colour, 0) + 1
        return counts

    def changes(self, other):
        """The places whose colour differs, as a set of (x, y)."""
        assert (self.width, self.height) == (other.width, other.height)
        if self.bytes == other.bytes:
            return set()
        row = 3 * self.width
        return {(x, y) for y in range(self.height)
                if self.bytes[y * row:(y + 1) * row] != other.bytes[y * row:(y + 1) * row]
                for x in range(self.width) if self.pixel(x, y) != other.pixel(x, y)}


def inverted(colour):
    return tuple(255 - part for part in colour)


def frame_of(places):
    """The rectangle around places: left, top, right, bottom, the latter two just outside."""
    xs, ys = [x for x, _ in places], [y for _, y in places]
    return min(xs), min(ys), max(xs) + 1, max(ys) + 1
