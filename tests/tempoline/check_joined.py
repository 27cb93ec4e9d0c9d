#!/usr/bin/env python3
"""Runs over parts of a period, joined by hand, by the script for GNU parallel, and by that for Slurm.

check_joined.py PROCESSOR WORK_DIRECTORY [CASE ...]
"""
import os
import re
import shutil
import subprocess
import sys

import make_inputs
from check_roses import YEAR, roses_of_frq, roses_of_tab
from control_files import control_text, set_key, write_control
from run_support import ROOT, SKIPPED, limited, main, names, run


def parts_of_year(directory, bounds):
    """Writes a control file for each part of the year; returns their names."""
    make_inputs.aermet_surface(directory / "a.sfc")
    controls = []
    for number, (begin, end) in enumerate(zip(bounds, bounds[1:])):
        text = control_text("aermsfc.inp", ["a.sfc"], [(1, "part%d" % number, "00072", 0, 0, 10)], begin + end,
                            keys={"TSFLST": "part%d.lst" % number})
        (directory / ("part%d.inp" % number)).write_bytes(text.encode("latin-1"))
        controls.append("part%d.inp" % number)
    write_control(directory / "whole.inp", "aermsfc.inp", ["a.sfc"], [(1, "whole", "00072", 0, 0, 10)], YEAR)
    return controls


BOUNDS = [[2004, 1, 1, 0, 0], [2004, 2, 29, 7, 0], [2004, 7, 1, 0, 0], [2005, 1, 1, 0, 0]]


def same_results(directory, joined, whole):
    assert roses_of_frq(directory / (joined + ".frq")) == roses_of_frq(directory / (whole + ".frq"))
    assert roses_of_tab(directory / (joined + ".tab")) == roses_of_tab(directory / (whole + ".tab"))
    period = lambda name: (directory / (name + ".frq")).read_text().splitlines()[8]
    assert period(joined) == period(whole)


def case_merged(processor, directory):
    for control in parts_of_year(directory, BOUNDS) + ["whole.inp"]:
        assert run(processor, directory, control).returncode == 0
    done = run(processor, directory, "--merge", "part2.tab", "part0.tab", "part1.tab")
    assert done.returncode == 0, done.stderr
    same_results(directory, "merged", "whole")
    # joined results can be joined again
    assert run(processor, directory, "--merge", "--out", "two", "part0.tab", "part1.tab").returncode == 0
    assert run(processor, directory, "--merge", "--out", "three", "two.tab", "part2.tab").returncode == 0
    same_results(directory, "three", "whole")
    for arguments, pattern in [
            (["part0.tab", "whole.tab"], "the same winds would be counted twice"), (["part0.tab", "part0.tab"], "counted twice"),
            (["part0.tab", "part0.frq"], r"part0\.frq:1: the first line is not that of a TAB file"),
            (["part0.tab", "none.tab"], r"none\.tab: No such file")]:
        done = run(processor, directory, "--merge", "--out", "none", *arguments)
        assert done.returncode == 1 and re.search(pattern, done.stderr), done.stderr
        assert not (directory / "none.frq").exists() and not (directory / "none.tab").exists()
    assert run(processor, directory, "--merge").returncode == 2
    done = run(processor, directory, "--merge", "part0.tab", "none.tab")  # results of that name existed
    kept = "tempoline: the results of an earlier run are kept as merged.previous.frq, merged.previous.tab"
    assert done.returncode == 1 and done.stderr.splitlines()[0] == kept, done.stderr
    assert not (directory / "merged.frq").exists() and not (directory / "merged.tab").exists()
    assert run(processor, directory, "--merge", "part2.tab", "part0.tab", "part1.tab").returncode == 0
    same_results(directory, "merged", "whole")
    assert not [name for name in names(directory) if "previous" in name], names(directory)


def case_huge_tab(processor, directory):
    """3 GB (a hole) in place of a TAB file: reported, although there is no memory for it."""
    for head in (b"", b"WIND.TAB        1.0             Zephyrgraph counts of winds\r\n"):
        with open(directory / "big.tab", "wb") as file:
            file.write(head)
            file.truncate(3 << 30)
        done = run(processor, directory, "--merge", "big.tab", preexec_fn=limited(250))
        assert done.returncode == 1 and done.stderr == "tempoline: big.tab: this is too long for a TAB file\n", done.stderr
    assert names(directory) == ["big.tab"], names(directory)
    # with less memory than that it is still reported
    done = run(processor, directory, "--merge", "big.tab", preexec_fn=limited(40))
    assert done.returncode == 1 and done.stderr == "tempoline: there is not enough memory\n", (done.returncode, done.stderr)
    (directory / "big.tab").unlink()


def example_environment(processor):
    return {**os.environ, "TEMPOLINE": processor}


def parallel_script(directory, processor, *controls, path=None):
    environment = example_environment(processor)
    if path is not None:
        environment["PATH"] = str(path)
    return subprocess.run(["bash", ROOT / "data" / "cluster" / "parallel.sh", "joined", *controls],
                          cwd=directory, capture_output=True, text=True, env=environment)


def path_without_parallel(directory):
    """A directory with the programs that the fallback needs."""
    programs = directory / "programs"
    programs.mkdir()
    for name in ("bash", "sh", "sed", "xargs", "nproc", "mv"):
        (programs / name).symlink_to(shutil.which(name))
    return programs


def check_parallel(processor, directory, path):
    controls = parts_of_year(directory, BOUNDS)
    assert run(processor, directory, "whole.inp").returncode == 0
    done = parallel_script(directory, processor, *controls, path=path)
    assert done.returncode == 0, done.stderr
    same_results(directory, "joined", "whole")
    # roses of a series have another key
    text = control_text("tsf.inp", ["whole.tsf"], [], YEAR, keys={"ROSEPLT": "again", "TSFLST": "again.lst"})
    (directory / "again.inp").write_bytes(text.encode("latin-1"))
    done = parallel_script(directory, processor, "again.inp", path=path)
    assert done.returncode == 0, done.stderr
    assert roses_of_tab(directory / "joined.tab") == roses_of_tab(directory / "again.tab")
    # a failed run ends all others, and no further one starts
    older = (directory / "joined.frq").read_bytes(), (directory / "joined.tab").read_bytes()
    last = ["last%d.inp" % number for number in range(40)]
    for control in last:
        text = (directory / "part0.inp").read_bytes().decode("latin-1")
        (directory / control).write_bytes(set_key(text, "TSFLST", control[:-4] + ".lst").encode("latin-1"))
    (directory / "broken.inp").write_bytes(b"broken\n\n! TSFOUT = broken !\n")
    done = parallel_script(directory, processor, "broken.inp", *last, path=path)
    kept = "the results of an earlier run are kept as joined.previous.frq, joined.previous.tab"
    assert done.returncode != 0 and done.stderr.splitlines()[-1] == kept, done.stderr
    assert [name for name in names(directory) if name.startswith("joined")] == ["joined.previous.frq", "joined.previous.tab"]
    assert older == ((directory / "joined.previous.frq").read_bytes(), (directory / "joined.previous.tab").read_bytes())
    assert len(list(directory.glob("last*.lst"))) < 20, names(directory)
    (directory / "broken.inp").write_bytes(b"broken")
    done = parallel_script(directory, processor, "part0.inp", "broken.inp", path=path)
    assert done.returncode == 1 and done.stderr.startswith("broken.inp: there is no TSFOUT"), done.stderr
    done = parallel_script(directory, processor, path=path)
    assert done.returncode == 2 and done.stderr.startswith("usage: "), done.stderr
    # what a killed run left does not replace a whole result that is aside, and success removes it
    (directory / "joined.tab").write_bytes(b"of a killed run")
    (directory / "broken.inp").write_bytes(b"broken\n\n! TSFOUT = broken !\n")
    done = parallel_script(directory, processor, "part0.inp", "broken.inp", path=path)
    assert done.returncode != 0 and done.stderr.splitlines()[-1] == kept, done.stderr
    assert older[1] == (directory / "joined.previous.tab").read_bytes()
    done = parallel_script(directory, processor, *controls, path=path)
    assert done.returncode == 0, done.stderr
    same_results(directory, "joined", "whole")
    assert not [name for name in names(directory) if "previous" in name], names(directory)
    # a control file that cannot be used is found before anything is put aside
    (directory / "broken.inp").write_bytes(b"broken")
    done = parallel_script(directory, processor, "part0.inp", "broken.inp", path=path)
    assert done.returncode == 1 and len(done.stderr.splitlines()) == 1, done.stderr
    same_results(directory, "joined", "whole")
    assert not [name for name in names(directory) if "previous" in name], names(directory)


def case_parallel(processor, directory):
    """The documented example: data/cluster/parallel.sh."""
    if shutil.which("parallel") is None:
        print("GNU parallel is not installed")
        return SKIPPED
    return check_parallel(processor, directory, None)


def case_parallel_xargs(processor, directory):
    """The same without GNU parallel."""
    check_parallel(processor, directory, path_without_parallel(directory))


def case_slurm(processor, directory):
    """The documented array file, its tasks started as the scheduler would start them."""
    controls = parts_of_year(directory, BOUNDS)
    (directory / "controls.txt").write_text("".join(name + "\n" for name in controls))
    assert run(processor, directory, "whole.inp").returncode == 0
    script = ROOT / "data" / "cluster" / "array.sbatch"
    tasks = [subprocess.Popen(["bash", script], cwd=directory, env={**example_environment(processor), "SLURM_ARRAY_TASK_ID": str(number)})
             for number in range(1, len(controls) + 1)]
    assert [task.wait(60) for task in tasks] == [0] * len(tasks)
    assert run(processor, directory, "--merge", "--out", "joined", "part0.tab", "part1.tab", "part2.tab").returncode == 0
    same_results(directory, "joined", "whole")


if __name__ == "__main__":
    sys.exit(main(globals()))
