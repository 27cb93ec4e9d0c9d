#!/usr/bin/env python3
# Looks at the companion's SVG and web report by the programs that people open them with: rsvg-convert, and Chromium without a window
# (Debian's librsvg2-bin and chromium-headless-shell). What is missing is said and left out.
#   check_pages.py COMPANION SAMPLES [AXE]      AXE: axe.min.js of npm's axe-core, which looks for barriers
import glob
import os
import re
import shutil
import subprocess
import sys
import tempfile

COMPANION, SAMPLES = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
AXE = sys.argv[3] if len(sys.argv) > 3 else ""
BROWSER = next((found for found in map(shutil.which, ("chromium-headless-shell", "chromium")) if found), None)
failures = []


def check(holds, what):
    print("%s  %s" % ("ok    " if holds else "FAILED", what))
    if not holds:
        failures.append(what)


def browser(*words):
    done = subprocess.run([BROWSER, "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--virtual-time-budget=20000",
                           *words], capture_output=True, timeout=300)
    return done.stdout.decode("utf-8", "replace")


def with_script(page, script, path):
    """A copy of the page that runs a script at its end and leaves its answer in the title."""
    with open(path, "w", encoding="utf-8") as copy:
        copy.write(page.replace("</body>", "<script>%s</script></body>" % script))
    return "file://" + path


def answer(page, script, scratch):
    text = browser("--dump-dom", with_script(page, script, os.path.join(scratch, "asked.html")))
    found = re.search(r"<title>(.*?)</title>", text, re.S)
    return found.group(1) if found else text[:200]


def look_at_svg(scratch):
    svg = os.path.join(scratch, "LOVETT_1988_01.svg")
    subprocess.run([COMPANION, os.path.join(SAMPLES, "LOVETT_1988.frq"), "--rose", "1", "--format", "svg", "--out", scratch], check=True,
                   stdout=subprocess.DEVNULL)
    if shutil.which("rsvg-convert"):
        png = os.path.join(scratch, "rsvg.png")
        done = subprocess.run(["rsvg-convert", svg, "-o", png], capture_output=True, check=False)
        check(done.returncode == 0 and not done.stderr and os.path.getsize(png) > 10000, "rsvg-convert draws the picture")
    else:
        print("left out: rsvg-convert is missing (librsvg2-bin)")
    if BROWSER:
        png = os.path.join(scratch, "browser.png")
        browser("--screenshot=" + png, "--window-size=600,600", "file://" + svg)
        check(os.path.exists(png) and os.path.getsize(png) > 10000, "the browser draws the picture")


def look_at_report(scratch):
    path = os.path.join(scratch, "report.html")
    samples = sorted(glob.glob(os.path.join(SAMPLES, "*.frq")))
    subprocess.run([COMPANION, *samples, "--html", path, "--out", scratch], check=True, stdout=subprocess.DEVNULL)
    page = open(path, encoding="utf-8").read()
    roses = page.count("<article ")
    count = "document.title=[].filter.call(document.querySelectorAll('.rose'),function(r){return r.offsetHeight>0}).length"
    check(answer(page, count, scratch) == str(roses), "all %d roses are shown" % roses)
    choose = ("var f=document.forms[0];f.period.value='Winter';f.dispatchEvent(new Event('change'));" + count +
              "+' '+document.querySelector('[role=status]').textContent")
    winters = page.count('data-period="Winter"')
    check(answer(page, choose, scratch) == "%d %d roses are shown." % (winters, winters), "a choice shows its %d roses alone" % winters)
    wide = "document.title=document.documentElement.scrollWidth<=innerWidth"
    check(answer(page, wide, scratch) == "true", "the page is not wider than the window")
    pdf = os.path.join(scratch, "print.pdf")
    browser("--print-to-pdf=" + pdf, "--no-pdf-header-footer", "file://" + path)
    check(os.path.getsize(pdf) > 10000, "the browser prints the page")
    if not AXE:
        print("left out: no axe-core was given, the search for barriers")
        return
    search = ("%s;document.title='running';axe.run(document).then(function(r){document.title=r.violations.length?"
              "JSON.stringify(r.violations.map(function(v){return [v.id,v.nodes.length,v.nodes[0].html.slice(0,150)]})):'none'})")
    for dark in (False, True):
        asked = with_script(page, search % open(AXE, encoding="utf-8").read().replace("</script>", "<\\/script>"),
                            os.path.join(scratch, "axe.html"))
        text = browser("--dump-dom", *(["--blink-settings=preferredColorScheme=0"] if dark else []), asked)
        found = re.search(r"<title>(.*?)</title>", text, re.S)
        check(bool(found) and found.group(1) == "none",
              "axe-core finds no barrier, %s (%s)" % ("dark" if dark else "light", found.group(1) if found else "no answer"))


with tempfile.TemporaryDirectory() as scratch_directory:
    look_at_svg(scratch_directory)
    if BROWSER:
        look_at_report(scratch_directory)
    else:
        print("left out: no browser is there (chromium-headless-shell)")
sys.exit(1 if failures else 0)
