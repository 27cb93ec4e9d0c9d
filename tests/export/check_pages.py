#!/usr/bin/env python3
# Looks at the companion's SVG and web report by the programs that people open them with: rsvg-convert, LibreOffice, and Chromium without a
# window (Debian's librsvg2-bin, libreoffice-impress-nogui and chromium-headless-shell). What is missing is said and left out.
#   check_pages.py COMPANION SAMPLES
#   check_pages.py COMPANION SAMPLES AXE     only searches reports for barriers, by axe.min.js of axe-core; nothing may be missing
import glob
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile

import browser

COMPANION, SAMPLES = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
AXE = sys.argv[3] if len(sys.argv) > 3 else ""
CELL = 15  # pixels
PRINTED_WIDTH = 703  # pixels of A4, which is narrower than Letter, between its margins
SHOWN = "[].filter.call(document.querySelectorAll('.rose'),function(r){return r.offsetHeight>0})"
FOCUS = ("(function(e){var s=getComputedStyle(e);return {what:e.name||e.className||e.tagName,seen:s.outlineStyle!='none'&&"
         "parseFloat(s.outlineWidth)>=2}})(document.activeElement)")
failures = []


def check(holds, what):
    print("%s  %s" % ("ok    " if holds else "FAILED", what))
    if not holds:
        failures.append(what)


def companion(*words):
    subprocess.run([COMPANION, *words], check=True, stdout=subprocess.DEVNULL)


def sample(name):
    return os.path.join(SAMPLES, name + ".frq")


def report(scratch, name, *words):
    """The path of a web report of the FRQ samples, or of the files among the words."""
    path = os.path.join(scratch, name + ".html")
    inputs = [] if any(word.endswith(".frq") for word in words) else sorted(glob.glob(os.path.join(SAMPLES, "*.frq")))
    companion(*inputs, *words, "--html", path, "--out", scratch)
    return path


def cells_of(path, shift=0):
    """Mean colours of the squares of 15 pixels of a bitmap of 600 pixels, which begin so far from its corner."""
    with open(path, "rb") as file:
        data = file.read()
    begin, width, height, depth = struct.unpack_from("<I4xiixxH", data, 10)
    line = (width * depth // 8 + 3) // 4 * 4
    lines = [data[begin + y * line:begin + (y + 1) * line] for y in range(abs(height))]
    if height > 0:
        lines.reverse()
    cells = {}
    for y in range(0, 600, CELL):
        for x in range(0, 600, CELL):
            part = b"".join(row[(x + shift) * depth // 8:(x + shift + CELL) * depth // 8] for row in lines[y + shift:y + shift + CELL])
            cells[x, y] = [sum(part[channel::depth // 8]) / CELL**2 for channel in range(3)]
    return cells


def look_by_office(scratch):
    """LibreOffice shows bars, texts and patterns where the program's own picture has them."""
    looks = {"LOVETT_1988": ([], 20), "mountain_valley": (["--hatch", "--numbers", "--calm-circle", "--units", "knots"], 35)}
    for name, (words, _) in looks.items():
        for kind in ("svg", "bmp"):
            companion(sample(name), "--rose", "1", *words, "--format", kind, "--out", scratch)
    pictures = [os.path.join(scratch, name + "_01") for name in looks]
    place = os.path.join(scratch, "office")
    done = subprocess.run(["soffice", "-env:UserInstallation=file://" + os.path.join(scratch, "profile"), "--headless", "--convert-to", "bmp",
                           "--outdir", place] + [picture + ".svg" for picture in pictures], capture_output=True, check=False, timeout=120)
    for picture, (_, limit) in zip(pictures, looks.values()):
        shown = os.path.join(place, os.path.basename(picture) + ".bmp")
        if not os.path.exists(shown):
            check(False, "LibreOffice opens %s: %s" % (picture, done.stderr.decode()))
            continue
        own, others = cells_of(picture + ".bmp"), cells_of(shown, 1)  # its page is a pixel larger
        away, at = max((abs(a - b), at) for at in own for a, b in zip(own[at], others[at]))
        check(away < limit, "LibreOffice draws %s as the program does (at most %.0f of 255 another colour, at %s)" % (
            os.path.basename(picture), away, at))


def look_at_svg(scratch, shown):
    svg = os.path.join(scratch, "LOVETT_1988_01.svg")
    companion(sample("LOVETT_1988"), "--rose", "1", "--format", "svg", "--out", scratch)
    if shutil.which("rsvg-convert"):
        png = os.path.join(scratch, "rsvg.png")
        done = subprocess.run(["rsvg-convert", svg, "-o", png], capture_output=True, check=False)
        check(done.returncode == 0 and not done.stderr and os.path.getsize(png) > 10000, "rsvg-convert draws the picture")
    else:
        print("left out: rsvg-convert is missing (librsvg2-bin)")
    if shutil.which("soffice"):
        look_by_office(scratch)
    else:
        print("left out: LibreOffice is missing (libreoffice-impress-nogui)")
    if shown:
        png = os.path.join(scratch, "browser.png")
        shown.window(600, 600)
        shown.open(svg)
        shown.screenshot(png)
        check(os.path.getsize(png) > 10000, "the browser draws the picture")


def look_at_choices(page):
    """Each pair of station and period shows its roses alone."""
    roses = page.ask("document.querySelectorAll('.rose').length")
    check(not page.ask("[].filter.call(document.querySelectorAll('option'),function(o){return !o.text||(!o.value&&o.index)}).length"),
          "every choice has a name")
    check(roses > 40 and page.ask(SHOWN + ".length") == roses, "all %d roses are shown" % roses)
    told = page.ask("""(function(){var form=document.forms[0],faults=[],pairs=0;
        function values(select){return [].map.call(select.options,function(o){return o.value})}
        values(form.station).forEach(function(station){values(form.period).forEach(function(period){
            form.station.value=station;form.period.value=period;form.dispatchEvent(new Event('change'));
            var shown=%s,fits=[].filter.call(document.querySelectorAll('.rose'),function(r){
                return (!station||r.dataset.station==station)&&(!period||r.dataset.period==period)});
            var said=document.querySelector('[role=status]').textContent;
            var files=[].filter.call(document.querySelectorAll('.file'),function(f){return f.offsetHeight>0}).length;
            var of=new Set(shown.map(function(r){return r.closest('.file')})).size;
            pairs++;if(shown.length!=fits.length||fits.some(function(r,i){return r!=shown[i]})||parseInt(said)!=fits.length||files!=of)
                faults.push(station+' / '+period);
        })});form.reset();form.dispatchEvent(new Event('change'));return [pairs,faults]})()""" % SHOWN)
    check(told[0] > 60 and not told[1], "each of %d choices of station and period shows its roses alone %s" % tuple(told))


def look_at_keys(page):
    """The report by keyboard: both choices, then table after table, each with a visible focus."""
    page.ask("document.activeElement.blur(),scrollTo(0,0)")
    order = []
    for key in ("Tab", "ArrowDown", "Tab", "Tab", "Enter", "Tab", "Tab"):
        page.press(key)
        if key == "Tab":
            order.append(page.ask(FOCUS))
    check([focus["what"] for focus in order] == ["station", "period", "SUMMARY", "scroll", "SUMMARY"],
          "Tab goes through choices, folds and tables in their order")
    check(all(focus["seen"] for focus in order), "the focus is always visible")
    check(page.ask("document.forms[0].station.selectedIndex") == 1 and page.ask(SHOWN + ".length") < 10,
          "a key in the choice of the station changes what is shown")
    check(page.ask("document.querySelectorAll('details[open]').length") == 1, "Enter opens a table")


def look_at_print(page, path, scratch):
    """A rose with its table on each sheet, with scripts or without them."""
    for paper, size, run in (("A4", (8.27, 11.69), True), ("Letter", (8.5, 11), True), ("Letter", (8.5, 11), False)):
        page.scripts(run)
        page.open(path)
        pdf = os.path.join(scratch, "print.pdf")
        page.print(pdf, *size)
        with open(pdf, "rb") as file:
            sheets = len(re.findall(rb"/Type\s*/Page\b", file.read()))
        check(sheets == 3, "three roses are printed on %d sheets of %s, %s scripts" % (sheets, paper, "with" if run else "without"))
    page.scripts(True)
    page.media("print")
    page.window(PRINTED_WIDTH, 900)
    page.open(path)
    check(page.ask("[].every.call(document.querySelectorAll('table'),function(t){return t.checkVisibility()})"),
          "all tables are printed, also where no script opens them")
    check(page.ask("document.documentElement.scrollWidth<=innerWidth"), "no table is wider than the paper")
    page.media()


def look_at_report(scratch, page):
    path = report(scratch, "report")
    page.window(1000, 800)
    page.open(path)
    look_at_choices(page)
    for width in (1000, 320):
        page.window(width, 800)
        check(page.ask("document.documentElement.scrollWidth<=innerWidth"), "the page is not wider than a window of %d" % width)
    page.window(1000, 800)
    look_at_keys(page)
    for scheme, is_dark in (("light", False), ("dark", True)):
        page.media(scheme=scheme)
        brightness = page.ask("getComputedStyle(document.body).backgroundColor.match(/\\d+/g).map(Number).reduce(function(a,b){return a+b})")
        check((brightness < 200) == is_dark, "the page is %s where the system is" % scheme)
    page.media()
    look_at_print(page, report(scratch, "printed", sample("mountain_valley")), scratch)


def search_barriers(scratch, page):
    """Nothing that axe-core knows as a barrier: wide and narrow, in light and dark colours, with tables open and closed, in print."""
    with open(AXE, encoding="utf-8") as file:
        axe = file.read()
    search = """axe.run(document).then(function(r){return {rules:r.passes.length,found:r.violations.map(function(v){
        return v.id+': '+v.nodes.length+' as '+v.nodes[0].html.slice(0,150)})}})"""
    looks = ("--palette", "greys", "--hatch", "--numbers", "--calm-circle", "--units", "knots")
    # The rules look at every element of a page; some roses have all kinds of them.
    for name, path in (("factory look", report(scratch, "usual", sample("LOVETT_1988"), sample("island_station"), "--rose", "1")),
                       ("other look", report(scratch, "looks", sample("island_station"), *looks))):
        page.open(path)
        page.ask(axe + ";0")
        for medium, scheme, width, is_open in (("", "light", 1000, False), ("", "dark", 1000, True), ("", "light", 320, True),
                                               ("print", "light", PRINTED_WIDTH, True)):
            page.media(medium, scheme)
            page.window(width, 800)
            page.ask("[].forEach.call(document.querySelectorAll('details'),function(d){d.open=%s})" % str(is_open).lower())
            told = page.ask(search)
            check(told["rules"] > 20 and not told["found"], "axe-core finds no barrier: %s, %s, %s, %d wide, tables %s %s" % (
                name, medium or "screen", scheme, width, "open" if is_open else "closed", told["found"]))


def main():
    program = browser.found()
    if AXE and not program:
        sys.exit("no browser is there (chromium-headless-shell)")
    with tempfile.TemporaryDirectory() as scratch:
        if not program:
            look_at_svg(scratch, None)
            print("left out: no browser is there (chromium-headless-shell)")
            return
        with browser.Browser(program, scratch) as page:
            if AXE:
                search_barriers(scratch, page)
            else:
                look_at_svg(scratch, page)
                look_at_report(scratch, page)


main()
sys.exit(1 if failures else 0)
