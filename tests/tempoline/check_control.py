#!/usr/bin/env python3
"""What the processor refuses before it reads any data: damaged control files, names that are not available.

check_control.py PROCESSOR WORK_DIRECTORY [CASE ...]
"""
import re
import socket
import subprocess
import sys

from check_roses import LISTING
from control_files import set_key
from run_support import OLD, day_control, good_day, main, names, needs_aside, needs_failure, old_results, run, surface, temporaries


def case_cut_control(processor, directory):
    """Cut before every line with a value: refused with status 2, until nothing that is needed is missing."""
    surface(directory, good_day())
    day_control(directory)
    whole = (directory / "c.inp").read_bytes()
    lines = whole.split(b"\r\n")
    last_needed = max(i for i, line in enumerate(lines) if b"! HR =" in line)
    refused = 0
    cuts = [count for count in range(len(lines)) if b"!" in lines[count]] + [len(lines) - 1]
    for count in cuts:
        (directory / "c.inp").write_bytes(b"\r\n".join(lines[:count]))
        if count <= last_needed:
            needs_failure(processor, directory, r"^tempoline: c\.inp:", status=2, aside=any(b"! TSFOUT" in line for line in lines[:count]))
            refused += 1
        else:
            done = run(processor, directory, "c.inp")
            assert done.returncode == 0, "cut behind line %d: %s" % (count, done.stderr)
            (directory / LISTING).unlink()
    assert refused == cuts.index(last_needed) + 1
    # within a line
    (directory / "c.inp").write_bytes(whole[:whole.index(b"! WSBIN") + 12])
    needs_failure(processor, directory, r"c\.inp:\d+: WSBIN: the value has no \"!\" at its end", status=2)


def case_bad_control(processor, directory):
    surface(directory, good_day())
    day_control(directory)
    good = (directory / "c.inp").read_bytes().decode("latin-1")

    def refuse(text, pattern):
        (directory / "c.inp").write_bytes(text.encode("latin-1"))
        needs_failure(processor, directory, pattern, status=2, aside="TSFOUT = out !" in text)

    single = [key for key in re.findall(r"! ([A-Z0-9]+) *=", good)
              if key not in ("METINP", "TSFID", "TSFOUT", "MET", "IDSEAS", "SEASNAME", "HR")]
    assert len(single) > 20
    for key in single:
        line = next(line for line in good.split("\r\n") if re.search(r"! %s *=" % key, line))
        refuse(good.replace(line, line + "\r\n" + line), r"%s: the key is given twice; first in line \d+" % key)
    for key in ("METINP", "TSFID", "TSFOUT", "MET", "IDSEAS", "SEASNAME", "HR"):
        line = next(line for line in good.split("\r\n") if re.search(r"! %s *=" % key, line))
        refuse(good.replace(line, line + "\r\n" + line), r"c\.inp:\d+: [A-Z]+: ")
    for key, value, pattern in [
            ("MDATA", "SURFACE", "MDATA: \"SURFACE\" is no known type of input"),
            ("MDATA", "M2D", "MDATA: M2D input is not supported"),
            ("MDATA", "POSTIME", "MDATA: POSTIME is air quality input, which is not supported"),
            ("MROSE", 2, "MROSE: pollutant roses \\(2\\) are not supported"),
            ("NAQINP", 1, "NAQINP: air quality input is not supported"),
            ("IBMO", 13, "IBMO: 13 is not between 1 and 12"), ("IBDY", "31st", "IBDY: \"31st\" is no whole number"),
            ("IEYR", 2003, "IEYR: the period ends before it begins"), ("ABTZ", "EST", "ABTZ: \"EST\" is no zone"),
            ("NSECDT", 0, "NSECDT: 0 is not between 1 and 86400"), ("NSECDT", "nan", "NSECDT: \"nan\" is no whole"),
            ("WSBIN", "0.5,1.8,1.7,5.4,8.5,10.8", "WSBIN: the speeds must not fall: \"1.7\""),
            ("WSBIN", "0.5,nan,1.8,5.4,8.5,10.8", "WSBIN: \"nan\" is no number"),
            ("WSBIN", "0.5,1.8,3.3", "WSBIN: found 3 speeds, 6"), ("MSN", "1,1,2", "MSN: found 3 seasons, 12"),
            ("TSFLST", "../x.lst", "TSFLST: \"../x.lst\" is no plain file name"),
            ("TSFOUT", "sub/out", "TSFOUT: \"sub/out\" is no plain file name"),
            ("NTSFOUT", 2, "NTSFOUT"), ("NMETINP", 2, "NMETINP: AERMSFC takes one file"),
            ("NTPD", 3, "HR: NTPD says 3, and 4 are given"), ("NWSP", 1, "NWSP: roses of single speed ranges"),
            ("HR", "01,25", "HR: 25 is not between 0 and 24")]:
        refuse(set_key(good, key, value), pattern)
    refuse(good.replace("MROSE = 1", "MROSES = 1"), "MROSES: there is no such key")
    refuse(good.replace("TEMPOLINE.INP", "TEMPOLINE.TXT"), "the first line does not begin with TEMPOLINE.INP")
    refuse("", "c.inp")
    (directory / "c.inp").unlink()
    needs_failure(processor, directory, "c.inp: No such file", status=2, aside=False)
    assert run(processor, directory).returncode == 2
    assert run(processor, directory, "a", "b").returncode == 2


def case_listing_over_others(processor, directory):
    """A listing with the name of an input, a result or the control file: refused, and nothing is written."""
    surface(directory, good_day())
    (directory / "linked.sfc").symlink_to("a.sfc")
    old_results(directory)
    day_control(directory)
    good = (directory / "c.inp").read_bytes().decode("latin-1")
    broken = good.replace("MROSE = 1", "MROSES = 1")
    for text, name, what in [(good, "a.sfc", "an input of the run"), (broken, "a.sfc", "an input of the run"),
                             (good, "linked.sfc", "an input of the run"), (good, "out.tab", "a result of the run"),
                             (broken, "out.frq", "a result of the run"), (good, "out.tsf", "a result of the run"),
                             (good, "out.previous.frq", "a result of the run"),
                             (good, "c.inp", "the control file"), (broken, "c.inp", "the control file")]:
        (directory / "c.inp").write_bytes(set_key(text, "TSFLST", name).encode("latin-1"))
        before = {path.name: path.read_bytes() for path in directory.iterdir()}
        done = run(processor, directory, "c.inp")
        pattern = r'^tempoline: c\.inp:\d+: TSFLST: the listing cannot be "%s", which is %s\n$' % (name, what)
        assert done.returncode == 2 and re.search(pattern, done.stderr), (done.returncode, done.stderr)
        assert before == {path.name: path.read_bytes() for path in directory.iterdir()}, names(directory)
    (directory / "TEMPOLINE.LST").write_bytes(b"broken")
    done = run(processor, directory, "TEMPOLINE.LST")
    assert done.returncode == 2 and (directory / "TEMPOLINE.LST").read_bytes() == b"broken", done.stderr


def case_results_over_inputs(processor, directory):
    """A result with the name of an input is refused, and the raw data are unchanged."""
    surface(directory, good_day())
    data = (directory / "a.sfc").read_bytes()
    day_control(directory)
    good = (directory / "c.inp").read_bytes().decode("latin-1")
    for name in ("out.frq", "out.tab", "out.tsf"):
        (directory / name).write_bytes(data)
        (directory / "c.inp").write_bytes(set_key(good, "METINP", name).encode("latin-1"))
        done = run(processor, directory, "c.inp")
        expected = 'tempoline: the result "%s" would take the place of an input\n' % name
        assert done.returncode == 2 and done.stderr == expected, (done.returncode, done.stderr)
        assert (directory / name).read_bytes() == data
        (directory / name).unlink()
    (directory / "c.inp").write_bytes(set_key(good, "METINP", "out.sfc").encode("latin-1"))
    (directory / "out.sfc").write_bytes(data)
    assert run(processor, directory, "c.inp").returncode == 0


def case_names_taken(processor, directory):
    """A result that cannot be created ends the run before the data are read, and the others are unchanged."""
    day_control(directory)  # the data do not exist
    good = (directory / "c.inp").read_bytes().decode("latin-1")
    for end in ("frq", "tab", "tsf"):
        old_results(directory)
        (directory / ("out." + end)).unlink()
        (directory / ("out." + end)).mkdir()
        done = run(processor, directory, "c.inp")
        assert done.returncode == 1, done.stderr
        assert done.stderr.splitlines()[-1] == "tempoline: out.%s: cannot be written: Is a directory" % end, done.stderr
        needs_aside(directory, [other for other in ("frq", "tab", "tsf") if other != end])
        (directory / ("out." + end)).rmdir()
    for key, name in (("TSFOUT", "x" * 252), ("TSFOUT", "x" * 243), ("TSFLST", "x" * 256), ("TSFLST", "sub")):
        (directory / "sub").mkdir(exist_ok=True)
        (directory / "c.inp").write_bytes(set_key(good, key, name).encode("latin-1"))
        done = run(processor, directory, "c.inp")
        pattern = r"^tempoline: \w+(\.\w+)*: cannot be written: (File name too long|Is a directory)\n$"
        assert done.returncode == 1 and re.search(pattern, done.stderr), done.stderr
    # a killed run with the same process number left files
    (directory / "c.inp").write_bytes(good.encode("latin-1"))
    surface(directory, good_day())
    old_results(directory)
    command = 'for i in 1 2 3; do : >.tempoline-$1-$$-$i.lock; : >.tempoline-$1-$$-$i-7.tmp; done; exec "$0" c.inp'
    done = subprocess.run(["sh", "-c", command, processor, socket.gethostname()], cwd=directory, capture_output=True, text=True)
    assert done.returncode == 0 and (directory / "out.frq").read_bytes() != OLD, done.stderr
    assert not temporaries(directory), names(directory)


def case_odd_names(processor, directory):
    """Names that look like options, and names with quotes, are names."""
    surface(directory, good_day())
    day_control(directory)
    good = (directory / "c.inp").read_bytes()
    for name in ("-dash.inp", "--dash.inp", "--merge.inp", "-", "--out", 'a"b.inp', '"', "it's.inp", "$(x).inp", " .inp", "%&^!.inp"):
        (directory / name).write_bytes(good)
        for words in ([name], ["--", name]):
            done = run(processor, directory, *words)
            assert done.returncode == 0, (words, done.stderr)
            (directory / "out.frq").unlink()
        (directory / name).unlink()
    (directory / "--merge").write_bytes(good)
    assert run(processor, directory, "--", "--merge").returncode == 0
    for words in (["-dash.inp"], ["--"], ["--", "c.inp", "c.inp"], ["-", "c.inp"], [""], ["--", ""], ["--merge", "--"]):
        done = run(processor, directory, *words)
        assert done.returncode == 2 and done.stderr.startswith("usage: "), (words, done.stderr)
    done = run(processor, directory, "--", "-none.inp")
    assert done.returncode == 2 and done.stderr == "tempoline: -none.inp: No such file or directory\n", done.stderr
    (directory / "-a.tab").write_bytes((directory / "out.tab").read_bytes())
    (directory / "--out").write_bytes((directory / "out.tab").read_bytes())
    for words in (["-a.tab"], ["--", "-a.tab"], ["--", "--out"]):
        done = run(processor, directory, "--merge", "--out", "joined", *words)
        assert done.returncode == 0 and (directory / "joined.frq").exists(), (words, done.stderr)
        (directory / "joined.frq").unlink()


if __name__ == "__main__":
    sys.exit(main(globals()))
