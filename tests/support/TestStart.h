#pragma once

/// What every test program does before its cases: sets a fixed locale and platform, and checks that the
/// programs it starts exist. Runs the cases and returns the exit status; 2 if something is missing, with a
/// line that says how to get it.
int startTests(int argc, char** argv);
