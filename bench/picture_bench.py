#!/usr/bin/env python3
# A PNG of one rose by the companion and by matplotlib (Debian's python3-matplotlib), 600 x 600 pixels each.
#   bench/picture_bench.py COMPANION
# Cold: a process that starts, draws one picture and ends. Warm: a picture more in a process that has drawn some: of the companion the
# difference of two runs of different length, divided by the pictures between them. The two take turns, since a machine is not equally fast all the
# time; printed are the shortest time of each and the median of the turns' ratios. Run it on a quiet machine.
import os
import statistics
import subprocess
import sys
import tempfile
import time

SAMPLE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "data", "samples", "LOVETT_1988.frq")
COLOURS = ["#ff0000", "#00ff00", "#0000ff", "#ffff00", "#00ffff", "#000000"]
DRAWN_BY_COMPANION = 40  # files of nine roses in the longer run
DRAWN_BY_OTHER = 10  # pictures at a time


def rose_of(path):
    """Labels and shares (percent, six classes) of the first rose."""
    lines = open(path, encoding="latin-1").read().splitlines()
    first = next(i for i, line in enumerate(lines) if line.startswith("Direction:")) + 1
    rows = [line.split(":") for line in lines[first:first + 16]]
    return [label.strip() for label, _ in rows], [[float(cell.strip().rstrip("%")) for cell in cells.split("%")[:6]]
                                                  for _, cells in rows]


def draw(plt, labels, shares, path):
    """The same page: rings of 5 percent, spokes, stacked bars of 7.5 degrees, labels, legend and title."""
    figure = plt.figure(figsize=(6, 6), dpi=100)
    axes = figure.add_axes([0.17, 0.17, 0.66, 0.66], projection="polar")
    axes.set_theta_zero_location("N")
    axes.set_theta_direction(-1)
    angles = [i * 6.283185307179586 / 16 for i in range(16)]
    below = [0.0] * 16
    for c, colour in enumerate(COLOURS):
        heights = [row[c] for row in shares]
        axes.bar(angles, heights, width=6.283185307179586 / 48, bottom=below, color=colour, edgecolor="#484848",
                 linewidth=0.7, label="class %d" % (c + 1))
        below = [b + h for b, h in zip(below, heights)]
    axes.set_xticks(angles)
    axes.set_xticklabels(labels, fontsize=8, fontweight="bold")
    axes.set_yticks([5, 10, 15, 20, 25])
    axes.set_yticklabels(["5%", "10%", "15%", "20%", "25%"], fontsize=7)
    axes.set_ylim(0, 25)
    figure.legend(loc="lower right", fontsize=7)
    figure.text(0.05, 0.95, "Lovett, New York - Hourly surface winds", fontsize=8)
    figure.savefig(path)
    plt.close(figure)


def once():
    """What the cold run of matplotlib does in its own process."""
    import matplotlib
    matplotlib.use("Agg")
    import matplotlib.pyplot as plt
    draw(plt, *rose_of(SAMPLE), sys.argv[2])


def seconds(words):
    begin = time.perf_counter()
    subprocess.run(words, check=True, stdout=subprocess.DEVNULL)
    return time.perf_counter() - begin


def in_turns(own, other, turns=7):
    """Best seconds of each, and the median of the ratios of neighbouring turns."""
    times = [(own(), other()) for _ in range(turns)]
    return min(o for o, _ in times), min(o for _, o in times), statistics.median(b / a for a, b in times)


def main():
    companion = os.path.abspath(sys.argv[1])
    with tempfile.TemporaryDirectory() as scratch:
        inputs = []
        for i in range(DRAWN_BY_COMPANION):
            inputs.append(os.path.join(scratch, "f%d.frq" % i))
            with open(SAMPLE, "rb") as source, open(inputs[-1], "wb") as copy:
                copy.write(source.read())
        words = [companion, "--quiet", "--out", scratch]
        import matplotlib
        matplotlib.use("Agg")
        import matplotlib.pyplot as plt
        rose = rose_of(SAMPLE)
        picture = os.path.join(scratch, "m.png")

        def another():
            begin = time.perf_counter()
            for _ in range(DRAWN_BY_OTHER):
                draw(plt, *rose, picture)
            return (time.perf_counter() - begin) / DRAWN_BY_OTHER

        def one_more():
            short = seconds(words + inputs[:1])
            return (seconds(words + inputs) - short) / ((len(inputs) - 1) * 9)

        another()
        cold = in_turns(lambda: seconds(words + [SAMPLE, "--rose", "1"]),
                        lambda: seconds([sys.executable, __file__, "--once", picture]))
        warm = in_turns(one_more, another)
    for name, (own, other, ratio) in (("cold", cold), ("warm", warm)):
        print("%s: companion %.1f ms, matplotlib %.1f ms, %.1f times" % (name, own * 1000, other * 1000, ratio))


if __name__ == "__main__":
    once() if len(sys.argv) > 2 and sys.argv[1] == "--once" else main()
