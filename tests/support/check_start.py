"""A test program reports what it lacks, and how to build it.

    check_start.py PROGRAM DIRECTORY
"""

import os
import shutil
import subprocess
import sys

program, directory = sys.argv[1:]
shutil.rmtree(directory, ignore_errors=True)
os.makedirs(directory)
copy = os.path.join(directory, "tests_of_something")
shutil.copy(program, copy)

with open(copy + ".needs", "w", encoding="utf-8") as needs:
    needs.write(f"processor {directory}/no such/tempoline.exe\n")
lacking = subprocess.run([copy, "--gtest_list_tests"], capture_output=True, text=True, check=False)
assert lacking.returncode == 2, lacking
assert lacking.stdout == "", lacking
assert lacking.stderr.startswith(f"tests_of_something needs {directory}/no such/tempoline.exe, which is not there. Build it:  cmake --build "), lacking
assert lacking.stderr.endswith(" --target processor\n"), lacking

with open(copy + ".needs", "w", encoding="utf-8") as needs:
    needs.write(f"itself {copy}\n")
complete = subprocess.run([copy, "--gtest_list_tests"], capture_output=True, text=True, check=False)
assert complete.returncode == 0 and complete.stdout != "", complete
