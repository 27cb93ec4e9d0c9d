#pragma once

/// What every test program does before its cases: a fixed locale and platform, and a look whether the
/// programs that it starts are there. Runs the cases and gives the exit status; 2 where something that it
/// needs is missing, with a line that says how to get it.
int startTests(int argc, char** argv);
