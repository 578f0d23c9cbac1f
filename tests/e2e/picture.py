"""Pictures of parts of the screen, looked at pixel by pixel."""

import subprocess

import person

WHITE, BLACK = (255, 255, 255), (0, 0, 0)


class Picture:
    """What shows in an area of the screen now."""

    def __init__(self, area):
        left, top, self.width, self.height = area
        self.bytes = subprocess.run(["import", "-silent", "-window", "root", "-crop",
                                     f"{self.width}x{self.height}+{left}+{top}", "+repage", "-depth", "8", "rgb:-"],
                                    stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, check=True, timeout=person.LIMIT).stdout
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


def lightness(colour):
    """How light a colour is, 0 to 1, as an eye sees it."""
    parts = [part / 255 for part in colour]
    red, green, blue = (part / 12.92 if part <= 0.03928 else ((part + 0.055) / 1.055) ** 2.4 for part in parts)
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    """1 for the same colour, 21 for black and white; from 4.5 on small letters are easy to read."""
    dark, light = sorted((lightness(one), lightness(other)))
    return (light + 0.05) / (dark + 0.05)


def ground_and_ink(picture):
    """The colour that most of a picture has, and the one that stands out most from it in more than a few pixels."""
    seen = picture.pixels(0, 0, picture.width, picture.height)
    ground = max(seen, key=seen.get)
    inks = [colour for colour, count in seen.items() if count >= 5]
    return ground, max(inks, key=lambda colour: contrast(ground, colour))


def frame_of(places):
    """The rectangle around places: left, top, right, bottom, the latter two just outside."""
    xs, ys = [x for x, _ in places], [y for _, y in places]
    return min(xs), min(ys), max(xs) + 1, max(ys) + 1
