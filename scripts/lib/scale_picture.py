"""scale_picture.py TABLE PICTURE: draws what scripts/scale has measured, the program beside the bare asking."""
import csv
import math
import sys
from xml.sax.saxutils import escape

PANELS = (("processes", "sleeping processes"),
          ("links", "network links"),
          ("mounts", "mounts (read every 15 s)"))
CURVES = (("processor_percent", "the program, window visible", "#0a66c2", ""),
          ("main_thread_percent", "of it the main thread", "#7a8794", "2 4"),
          ("bare_percent", "the bare asking alone", "#c2410c", "7 4"),
          ("clocks_percent", "without listing /proc", "#15803d", "9 3 2 3"))
PERCENT = (0.01, 100)
INK, LINES, GROUND = "#1c2733", "#d9dfe6", "#ffffff"
WIDTH, HEIGHT, TOP, LEFT, GAP = 300, 260, 74, 62, 46


def thousands(number):
    return "{:,}".format(number)


class Panel:
    """One kind over its count, both axes logarithmic."""

    def __init__(self, rows, left):
        self.rows, self.left = rows, left
        counts = [int(row["count"]) for row in rows]
        self.first, self.last = min(counts) / 1.5, max(counts) * 1.5

    def x(self, count):
        return self.left + WIDTH * math.log(count / self.first) / math.log(self.last / self.first)

    @staticmethod
    def y(percent):
        low, high = PERCENT
        return TOP + HEIGHT * (1 - math.log(max(percent, low) / low) / math.log(high / low))

    def draw(self, out, title):
        out.append('<text x="%d" y="%d" font-weight="600">%s</text>' % (self.left, TOP - 12, escape(title)))
        percent = PERCENT[0]
        while percent <= PERCENT[1] * 1.01:
            y = self.y(percent)
            out.append('<path d="M%d %.1fh%d" stroke="%s"/>' % (self.left, y, WIDTH, LINES))
            out.append('<text x="%d" y="%.1f" text-anchor="end">%g %%</text>' % (self.left - 6, y + 4, percent))
            percent *= 10
        for row in self.rows:
            x = self.x(int(row["count"]))
            out.append('<path d="M%.1f %dv%d" stroke="%s"/>' % (x, TOP, HEIGHT, LINES))
            out.append('<text x="%.1f" y="%d" text-anchor="middle">%s</text>' % (
                x, TOP + HEIGHT + 18, thousands(int(row["count"]))))
        for column, _, colour, dashes in CURVES:
            points = [(self.x(int(row["count"])), self.y(float(row[column]))) for row in self.rows
                      if row[column] != "-"]
            if not points:
                continue
            out.append('<polyline points="%s" fill="none" stroke="%s" stroke-width="2" stroke-dasharray="%s"/>' % (
                " ".join("%.1f,%.1f" % point for point in points), colour, dashes))
            for x, y in points:
                out.append('<circle cx="%.1f" cy="%.1f" r="3" fill="%s"/>' % (x, y, colour))


def main():
    with open(sys.argv[1]) as file:
        table = list(csv.DictReader(file, delimiter="\t"))
    panels = [(kind, title, [row for row in table if row["kind"] == kind]) for kind, title in PANELS]
    panels = [panel for panel in panels if len(panel[2]) > 1]
    if not panels:
        sys.exit("scale: nothing has been measured that could be drawn")
    width = LEFT + len(panels) * (WIDTH + GAP + 8)
    height = TOP + HEIGHT + 40
    out = ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 %d %d" width="%d" height="%d" '
           'font-family="sans-serif" font-size="12" fill="%s" role="img">' % (width, height, width, height, INK),
           "<title>Processor time in percent of one processor, at 0.5 s, over the number of processes, links and "
           "mounts</title>",
           '<rect width="%d" height="%d" rx="8" fill="%s"/>' % (width, height, GROUND),
           '<text x="%d" y="28" font-size="14" font-weight="600">Percent of one processor</text>' % LEFT]
    x = LEFT + 236
    for _, words, colour, dashes in CURVES:
        out.append('<path d="M%d 24h34" stroke="%s" stroke-width="2" stroke-dasharray="%s"/>' % (x, colour, dashes))
        out.append('<text x="%d" y="28">%s</text>' % (x + 42, escape(words)))
        x += 56 + 6.6 * len(words)
    for place, (_, title, rows) in enumerate(panels):
        Panel(rows, LEFT + place * (WIDTH + GAP + 8)).draw(out, title)
    out.append("</svg>")
    with open(sys.argv[2], "w") as file:
        file.write("\n".join(out) + "\n")


main()
